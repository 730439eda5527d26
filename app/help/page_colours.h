// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of a page beside those of its style sheets.
#pragma once

#include <QPalette>
#include <QTextCharFormat>

namespace odmiennik::app {

// Ground, text, links and selection of a page on a light or a dark screen.
[[nodiscard]] QPalette pagePalette(bool isDark);

// How a word that was searched for is marked.
[[nodiscard]] QTextCharFormat markFormat(bool isDark);

}  // namespace odmiennik::app
