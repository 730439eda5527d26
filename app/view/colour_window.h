// SPDX-License-Identifier: GPL-3.0-or-later
// The window frmKolory: the user's two colours.
#pragma once

#include <array>

#include "app/common/steady_window.h"
#include "app/main_window/live_colours.h"
#include "app/view/colour_chooser.h"

class QPushButton;

namespace odmiennik::app {

// A filled rectangle in the colour being edited.
class ColourSample final : public QWidget {
  Q_OBJECT

 public:
  explicit ColourSample(QWidget* parent);
  void setColour(const QColor& colour);
  [[nodiscard]] QColor colour() const { return colour_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor colour_;
};

// Starts with the live colours of the main window; modal.
class ColourWindow final : public SteadyWindow<> {
  Q_OBJECT

 public:
  ColourWindow(LiveColours& live, ColourChooser& chooser, QWidget* parent);

 private:
  void addSample(std::size_t index);
  void addButtons();
  QPushButton& addButton(const char* name, const QString& caption);
  void change(std::size_t index);
  void apply(ColourNumbers colours);
  void refresh();

  LiveColours& live_;
  ColourChooser& chooser_;
  ColourDialog dialog_;
  std::array<ColourSample*, 2> samples_{};
  QPushButton* applyButton_ = nullptr;
};

}  // namespace odmiennik::app
