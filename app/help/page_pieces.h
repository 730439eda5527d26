// SPDX-License-Identifier: GPL-3.0-or-later
// The lines and table rows of a document that is laid out.
#pragma once

#include <QTextDocument>
#include <vector>

#include "app/logic/page_breaks.h"

namespace odmiennik::app {

// Every line and every row of a table, from top to bottom, with what holds them together: a heading
// and what follows it, the first and the last two lines of a paragraph, a sentence that announces a
// table, a table of few rows.
[[nodiscard]] std::vector<TextPiece> piecesOf(const QTextDocument& document);

}  // namespace odmiennik::app
