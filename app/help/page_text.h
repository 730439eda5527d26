// SPDX-License-Identifier: GPL-3.0-or-later
// What a reader sees of a page, without the widget that shows it.
#pragma once

#include <QString>

namespace odmiennik::app {

struct PageText {
  QString title;  // what stands between the tags of that name
  QString text;
};

// "<title>A</title></head><p>a&nbsp;<b>b</b></p>" -> {"A", "a b"}, the blank a non-breaking one:
// tags away, entities resolved, runs of blanks made one. A tag that ends a line leaves a blank.
[[nodiscard]] PageText pageText(const QString& markup);

// "d&#251; &amp; \"" -> "dû & \"". What is no entity stays.
[[nodiscard]] QString withoutEntities(const QString& text);

}  // namespace odmiennik::app
