// SPDX-License-Identifier: GPL-3.0-or-later
// The style sheets of the pages: on a light and on a dark screen, larger and smaller.
#pragma once

#include <QString>

class QTextDocument;

namespace odmiennik::app {

// Names of the help file's sheets. The two others are read behind the first, which every page asks
// for, and change what they name.
inline constexpr char kDarkSheet[] = "ciemny.css";
inline constexpr char kPaperSheet[] = "druk.css";

// The sheet with every size in points made larger or smaller: ("p { font-size: 10pt }", 150) ->
// "p { font-size: 15pt }".
[[nodiscard]] QString sheetAt(const QString& sheet, int percent);

// Gives the headings of a document the sizes of its sheet. Qt keeps its own beside them, steps from
// the size of the text in dots of the screen, and prefers those.
void takeHeadingSizes(QTextDocument& document);

}  // namespace odmiennik::app
