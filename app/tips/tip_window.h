// SPDX-License-Identifier: GPL-3.0-or-later
// The window of the tip of the day.
#pragma once

#include <array>
#include <functional>
#include <optional>

#include "app/common/steady_window.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace odmiennik::app {

class UserStore;

// Shows one tip at a time; always modal.
class TipWindow final : public SteadyWindow<> {
  Q_OBJECT

 public:
  // `isForced` is the flag that asks for the how-to; the first tip shown clears it. `random` gives
  // numbers from 0 to below 1.
  TipWindow(QWidget* parent, UserStore& store, bool& isForced, std::function<double()> random);

  // Draws another tip and shows it.
  void DisplayCurrentTip();

  // Shows the buttons of the demonstrations beside the how-to, and nowhere else; without this call
  // they stay hidden. A click runs `announce` and closes the window.
  void offerDemonstrations(std::function<void()> announce);

  // The demonstration that was asked for when the window closed: 0 or 1.
  [[nodiscard]] std::optional<int> chosenDemonstration() const { return chosen_; }

 protected:
  // Stays beside its parent.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void create();
  void arrange();
  void connectControls(UserStore& store);
  void choose(int demonstration);
  void showDemonstrationButtons();

  bool& isForced_;
  std::function<double()> random_;
  std::function<void()> announce_;
  std::optional<int> chosen_;
  int tip_ = 0;
  QLabel* heading_ = nullptr;
  QLabel* text_ = nullptr;
  QCheckBox* atStart_ = nullptr;
  std::array<QPushButton*, 2> demonstrations_{};
  QPushButton* next_ = nullptr;
  QPushButton* ok_ = nullptr;
};

}  // namespace odmiennik::app
