// SPDX-License-Identifier: GPL-3.0-or-later
// The project of the compiled help: its main file, table of contents and index, in Windows-1250.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "tools/build_help/contents.h"

namespace odmiennik::tools {

// The style sheets of the help, beside the project file: what every page asks for, and what is read
// behind it on a dark screen and on paper.
inline constexpr std::array<const char*, 3> kStyleSheets{"styl.css", "ciemny.css", "druk.css"};

// The file of the project that becomes the record of contexts of the help file.
inline constexpr const char* kContextFile = "#IVB";

// The project file, with the style sheets and the names of all pages (as they stand in strony/) and
// pictures (in obrazy/).
[[nodiscard]] std::string projectFile(const std::vector<std::string>& pages,
                                      const std::vector<std::string>& pictures);

[[nodiscard]] std::string contentsFile(const std::vector<ContentsEntry>& entries);

[[nodiscard]] std::string indexFile(const std::vector<IndexEntry>& entries);

}  // namespace odmiennik::tools
