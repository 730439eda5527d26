// An arrow points only downward: a folder includes only what stands below it.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "tests/lint/source_tree.h"

namespace odmiennik::lint {
namespace {

using Folders = std::set<std::string>;

// What each folder may include of the project; folders that are not named may include anything.
const std::map<std::string, Folders> kMayInclude{
    {"engine", {"engine"}},
    {"groups", {"engine", "groups", "data"}},
    {"dictionary", {"engine", "groups", "dictionary", "data"}},
    {"cli", {"engine", "groups", "dictionary", "cli", "data"}},
    {"app", {"engine", "groups", "dictionary", "app", "data"}},
    {"tools", {"engine", "groups", "tools"}},
};

const Folders kProjectFolders{"engine", "groups", "dictionary", "cli",  "app",
                              "data",   "tools",  "tests",      "bench"};

// "file includes file", for every include that points upward.
std::vector<std::string> upwardIncludes() {
  std::vector<std::string> found;
  for (const Source& source : cppSources()) {
    const auto allowed = kMayInclude.find(source.folder());
    if (allowed == kMayInclude.end()) continue;
    for (const std::string& line : linesOf(source.text)) {
      const std::string target = includedBy(line);
      const std::string folder = target.substr(0, target.find('/'));
      if (kProjectFolders.contains(folder) && !allowed->second.contains(folder))
        found.push_back(source.path + " includes " + target);
    }
  }
  return found;
}

bool isQtHeader(const std::string& header) {
  return header.size() > 1 && header[0] == 'Q' && std::isupper(header[1]) != 0;
}

TEST(layering, no_folder_includes_what_stands_above_it) {
  EXPECT_EQ(upwardIncludes(), std::vector<std::string>{});
}

TEST(layering, tools_take_only_the_shape_of_rows_from_the_groups) {
  for (const Source& source : cppSources()) {
    if (source.folder() != "tools") continue;
    for (const std::string& line : linesOf(source.text)) {
      const bool isOfGroups = includedBy(line).starts_with("groups/");
      EXPECT_TRUE(!isOfGroups || includedBy(line) == "groups/rule_rows.h") << source.path;
    }
  }
}

TEST(layering, qt_is_known_to_the_windows_and_their_tests_alone) {
  const Folders kQtFolders{"app", "tests", "bench"};
  for (const Source& source : cppSources()) {
    if (kQtFolders.contains(source.folder())) continue;
    for (const std::string& line : linesOf(source.text))
      EXPECT_FALSE(isQtHeader(includedBy(line))) << source.path << ": " << line;
  }
}

TEST(layering, the_scan_sees_the_sources) { EXPECT_GT(cppSources().size(), 40U); }

}  // namespace
}  // namespace odmiennik::lint
