// SPDX-License-Identifier: GPL-3.0-or-later
// F1, wherever it is pressed.
#pragma once

#include <QObject>
#include <functional>

namespace odmiennik::app {

// Calls `open` when F1 alone is pressed in any window of the program, modal ones and Qt's own
// dialogs included; a menu that is open keeps the key.
class HelpKey final : public QObject {
  Q_OBJECT

 public:
  explicit HelpKey(std::function<void()> open);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<void()> open_;
};

}  // namespace odmiennik::app
