// SPDX-License-Identifier: GPL-3.0-or-later
// Painting of the subject pronouns.
#include "app/controls/pronoun_painter.h"

#include <QFontMetricsF>
#include <QPainter>

#include "app/common/text.h"

namespace odmiennik::app {
namespace {

// A pronoun begins 2.3 measures in front of its box; a measure is half a line of the font, narrowed
// with its letters.
qreal gutterOf(const QFont& font, int lineHeight) {
  constexpr qreal kMeasuresInFront = 2.3;
  const qreal width = font.stretch() == QFont::AnyStretch ? 1 : font.stretch() / 100.0;
  return kMeasuresInFront * width * lineHeight / 2;
}

}  // namespace

void PronounPainter::show(const engine::SubjectPronouns& pronouns) {
  for (std::size_t slot = 0; slot < pronouns.size(); ++slot)
    pronouns_[slot] = fromFrench(pronouns[slot]);
}

std::optional<int> PronounPainter::slotAt(const QPoint& place, const QFont& font) const {
  const qreal gutter = gutterOf(font, QFontMetrics(font).height());
  for (std::size_t slot = 0; slot < boxes_.size(); ++slot) {
    const QRectF box = boxes_[slot];
    if (QRectF(box.left() - gutter, box.top(), gutter, box.height()).contains(place))
      return static_cast<int>(slot);
  }
  return std::nullopt;
}

void PronounPainter::paint(QPainter& painter, const QRect& region) const {
  const qreal gutter = gutterOf(painter.font(), painter.fontMetrics().height());
  for (std::size_t slot = 0; slot < boxes_.size(); ++slot) {
    const QRectF place = QRectF(boxes_[slot]).translated(-gutter, 0);
    if (place.intersects(region))
      painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, pronouns_[slot]);
  }
}

}  // namespace odmiennik::app
