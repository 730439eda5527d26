// The project of the compiled help: its main file, table of contents and index, in Windows-1250.
#pragma once

#include <string>
#include <vector>

#include "tools/build_help/contents.h"

namespace odmiennik::tools {

// The project file, with the names of all pages (as they stand in strony/).
[[nodiscard]] std::string projectFile(const std::vector<std::string>& pages);

[[nodiscard]] std::string contentsFile(const std::vector<ContentsEntry>& entries);

[[nodiscard]] std::string indexFile(const std::vector<IndexEntry>& entries);

}  // namespace odmiennik::tools
