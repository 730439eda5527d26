// SPDX-License-Identifier: GPL-3.0-or-later
// The table of contents and the index of a compiled help file.
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace odmiennik::app {

struct HelpContentsEntry {
  int level;  // 1 for the chapters
  QString title;
  QString page;  // "/strony/default.htm"

  bool operator==(const HelpContentsEntry&) const = default;
};

// Reads a contents file (.hhc) or an index (.hhk): lists of objects with a name and a page, in
// Windows-1250. What it does not understand is passed over; levels deeper than eight and very long
// lists are cut off.
[[nodiscard]] std::vector<HelpContentsEntry> readHelpContents(const QByteArray& file);

// Text in Windows-1250, the encoding of Polish help files: "\xB9" -> "ą".
[[nodiscard]] QString fromWindows1250(const QByteArray& bytes);

}  // namespace odmiennik::app
