// SPDX-License-Identifier: GPL-3.0-or-later
// When the tip of the day is shown: at start, and when the Help menu asks for it.
#pragma once

#include <functional>
#include <optional>

class QWidget;

namespace odmiennik::app {

class UserStore;

// What announces a demonstration over the tip, and what shows the first (0) or the second (1) one
// once the tip is closed.
struct Demonstrations {
  std::function<void()> announce;
  std::function<void(int way)> run;
};

class TipOfTheDay {
 public:
  // Tips appear over `window`.
  TipOfTheDay(QWidget& window, UserStore& store, Demonstrations demonstrations);

  // The tip at start, unless the user has switched it off. Returns when the window is closed.
  void showAtStart();

  // Any tip, or the one that tells how a verb is conjugated.
  void show();
  void showHowTo();

 private:
  [[nodiscard]] std::optional<int> showTip();

  QWidget& window_;
  UserStore& store_;
  Demonstrations demonstrations_;
  bool isForced_ = false;  // the next tip is the how-to
  bool isShown_ = false;
};

}  // namespace odmiennik::app
