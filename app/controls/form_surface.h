// SPDX-License-Identifier: GPL-3.0-or-later
// The ground of the main window: what is painted and no control of its own.
#pragma once

#include <QRectF>
#include <QWidget>
#include <vector>

#include "app/common/colours.h"
#include "app/controls/pronoun_painter.h"

namespace odmiennik::app {

// Paints the panel, the rules and lines of the table and the subject pronouns; carries the
// controls.
class FormSurface final : public QWidget {
  Q_OBJECT

 public:
  explicit FormSurface(QWidget* parent);

  [[nodiscard]] PronounPainter& pronouns() { return pronouns_; }
  void setMoodColour(const QColor& colour);

  // Puts the panel, shape or line of a row where the layout has it.
  void setPlace(std::size_t row, const QRectF& place);

  // The size that the window was designed for.
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  // A panel, shape or line, with its place in pixels.
  struct Decoration {
    std::size_t row;
    QRectF place;
  };
  void paint(QPainter& painter, const Decoration& decoration) const;

  std::vector<Decoration> decorations_;
  PronounPainter pronouns_;
  QColor moodColour_;
};

}  // namespace odmiennik::app
