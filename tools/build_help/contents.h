// SPDX-License-Identifier: GPL-3.0-or-later
// The table of contents and the index of the help, as they stand in help/.
#pragma once

#include <string>
#include <vector>

#include "engine/utf8.h"

namespace odmiennik::tools {

// A line of the table of contents: "2 | Présent | PresentIndicatif.htm".
struct ContentsEntry {
  int level = 1;  // 1 is the outermost
  Utf8Text title;
  Utf8Text page;  // the page's name in strony/
};

// A line of the index: "liczba mnoga | Uzgodnienie.htm".
struct IndexEntry {
  Utf8Text keyword;
  Utf8Text page;
};

struct HelpContents {
  std::vector<ContentsEntry> contents;
  std::vector<IndexEntry> index;
};

// Reads spis.txt and indeks.txt of the folder. Throws SourceError ("file:line: reason") for a line
// of another shape, a level that skips one, and a page that is not in the folder's strony/.
[[nodiscard]] HelpContents readHelpContents(const std::string& folder);

}  // namespace odmiennik::tools
