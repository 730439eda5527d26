// SPDX-License-Identifier: GPL-3.0-or-later
// The subject pronouns in front of the boxes, painted on the window itself.
#pragma once

#include <QFont>
#include <QRect>
#include <QString>
#include <array>
#include <optional>

#include "engine/pronouns.h"

class QPainter;
class QWidget;

namespace odmiennik::app {

class PronounPainter {
 public:
  // Takes the pronouns over; the next paint shows them.
  void show(const engine::SubjectPronouns& pronouns);

  // Where the box of slot 0 to 89 stands.
  void setBox(int slot, const QRect& box) { boxes_[static_cast<std::size_t>(slot)] = box; }

  [[nodiscard]] const QString& pronoun(int slot) const {
    return pronouns_[static_cast<std::size_t>(slot)];
  }

  // The box whose pronoun stands at `place`; nothing where none does. `font` is that of the
  // painter.
  [[nodiscard]] std::optional<int> slotAt(const QPoint& place, const QFont& font) const;

  // Paints those that touch `region`, in the painter's pen and font.
  void paint(QPainter& painter, const QRect& region) const;

 private:
  std::array<QString, engine::kPersonalSlotCount> pronouns_;
  std::array<QRect, engine::kPersonalSlotCount> boxes_;
};

}  // namespace odmiennik::app
