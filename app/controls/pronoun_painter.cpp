// Painting of the subject pronouns.
#include "app/controls/pronoun_painter.h"

#include <QFontMetricsF>
#include <QPainter>

#include "app/common/text.h"

namespace odmiennik::app {

void PronounPainter::show(const engine::SubjectPronouns& pronouns) {
  for (std::size_t slot = 0; slot < pronouns.size(); ++slot)
    pronouns_[slot] = fromFrench(pronouns[slot]);
}

void PronounPainter::paint(QPainter& painter, const QRect& region) const {
  // A pronoun begins 2.3 measures in front of its box; a measure is half a line of the font,
  // narrowed with its letters.
  constexpr qreal kMeasuresInFront = 2.3;
  const QFont& font = painter.font();
  const qreal width = font.stretch() == QFont::AnyStretch ? 1 : font.stretch() / 100.0;
  const qreal gutter = kMeasuresInFront * width * painter.fontMetrics().height() / 2;
  for (std::size_t slot = 0; slot < boxes_.size(); ++slot) {
    const QRectF place = QRectF(boxes_[slot]).translated(-gutter, 0);
    if (place.intersects(region))
      painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, pronouns_[slot]);
  }
}

}  // namespace odmiennik::app
