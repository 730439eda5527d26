// SPDX-License-Identifier: GPL-3.0-or-later
// Captions of drop-down lists.
#pragma once

#include <QString>

class QComboBox;
class QWidget;

namespace odmiennik::app {

// A caption whose access key goes to `list`, to be laid out beside it: captionOf("&Papier:", list).
// It stands in a widget of its own, since a screen reader says a caption that it knows to belong to
// a list in the place of the list's choice; so it says the choice first, then the caption's word.
// A choice that is changed by a key is announced: nothing else tells it.
[[nodiscard]] QWidget* captionOf(const QString& caption, QComboBox& list);

}  // namespace odmiennik::app
