// SPDX-License-Identifier: GPL-3.0-or-later
// The about window: version, statistics of use, and the way to the system's information.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <cstdint>
#include <optional>

#include "app/common/steady_window.h"
#include "dictionary/messages.h"

namespace odmiennik::app {

// The verbs conjugated since the first run, and the starts of the program.
struct Usage {
  std::int32_t conjugations = 0;
  std::int32_t runs = 0;
};

// Has the outline of a speech bubble and no frame; it is moved by dragging it anywhere.
class AboutWindow final : public SteadyWindow<> {
  Q_OBJECT

 public:
  AboutWindow(QWidget* parent, const Usage& usage, dictionary::MessageBoxes& messages);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void create(const Usage& usage);
  void arrange();
  void startSystemInformation();

  dictionary::MessageBoxes& messages_;
  QLabel* title_ = nullptr;
  QLabel* version_ = nullptr;
  QLabel* description_ = nullptr;
  QLabel* disclaimer_ = nullptr;
  QLabel* statistics_ = nullptr;
  QPushButton* systemInformation_ = nullptr;
  QPushButton* ok_ = nullptr;
  std::optional<QPoint> grip_;  // where in the window it is being dragged
};

}  // namespace odmiennik::app
