// SPDX-License-Identifier: GPL-3.0-or-later
// The system's colour chooser, which a test answers in the user's stead.
#pragma once

#include <QColor>
#include <optional>

class QWidget;

namespace odmiennik::app {

class ColourChooser {
 public:
  virtual ~ColourChooser() = default;
  // Shows the chooser modally over `parent`, starting on `start`; nothing when it was cancelled.
  [[nodiscard]] virtual std::optional<QColor> choose(QWidget& parent, const QColor& start) = 0;
};

// The dialog CommonDialog1, in Polish.
class QtColourChooser final : public ColourChooser {
 public:
  [[nodiscard]] std::optional<QColor> choose(QWidget& parent, const QColor& start) override;
};

}  // namespace odmiennik::app
