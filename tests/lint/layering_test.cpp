// SPDX-License-Identifier: GPL-3.0-or-later
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
    {"engine", {"engine", "data"}},
    {"groups", {"engine", "groups", "data"}},
    {"disk", {"engine", "disk"}},
    {"dictionary", {"engine", "groups", "disk", "dictionary", "data"}},
    {"explainer", {"engine", "groups", "dictionary", "formats", "explainer", "data"}},
    {"finder", {"engine", "groups", "disk", "dictionary", "finder", "data"}},
    {"formats", {"engine", "dictionary", "formats"}},
    {"cli",
     {"engine", "groups", "disk", "dictionary", "explainer", "finder", "formats", "cli", "data"}},
    {"app",
     {"engine", "groups", "disk", "dictionary", "explainer", "finder", "formats", "app", "data"}},
    {"tools", {"engine", "groups", "dictionary", "finder", "tools"}},
};

// The floors of the window, the lowest first: a part includes parts of lower floors and itself.
const std::vector<Folders> kFloorsOfTheWindow{
    {"logic"},
    {"platform", "common"},
    {"controls"},
    {"layout"},
    {"main_window"},
    {"about", "editing", "explaining", "exporting", "finding", "list", "printing", "tips", "view"},
    {"demonstration", "help", "hints", "lifetime"},
    {"typing"},
};

const Folders kProjectFolders{"engine", "groups",  "disk", "dictionary", "explainer",
                              "finder", "formats", "cli",  "app",        "data",
                              "tools",  "tests",   "bench"};

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

// The folder of a file of the window, "app/list/list_window.h" -> "list"; empty for other files.
std::string partOfTheWindow(const std::string& path) {
  const std::string app = "app/";
  const auto slash = path.find('/', app.size());
  if (!path.starts_with(app) || slash == std::string::npos) return {};
  return path.substr(app.size(), slash - app.size());
}

// Counted from 1; 0 for what is on no floor.
std::size_t floorOf(const std::string& part) {
  for (std::size_t floor = 0; floor < kFloorsOfTheWindow.size(); ++floor)
    if (kFloorsOfTheWindow[floor].contains(part)) return floor + 1;
  return 0;
}

// "file includes file", for every include inside the window that does not lead downward.
std::vector<std::string> includesBetweenFloors() {
  std::vector<std::string> found;
  for (const Source& source : cppSources()) {
    const std::string part = partOfTheWindow(source.path);
    if (part.empty()) continue;
    for (const std::string& line : linesOf(source.text)) {
      const std::string target = partOfTheWindow(includedBy(line));
      if (!target.empty() && target != part && floorOf(target) >= floorOf(part))
        found.push_back(source.path + " includes " + includedBy(line));
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

TEST(layering, a_part_of_the_window_includes_only_parts_below_it) {
  EXPECT_EQ(includesBetweenFloors(), std::vector<std::string>{});
}

TEST(layering, every_part_of_the_window_has_its_floor) {
  for (const Source& source : cppSources()) {
    const std::string part = partOfTheWindow(source.path);
    EXPECT_TRUE(part.empty() || floorOf(part) > 0) << source.path;
  }
}

TEST(layering, the_logic_of_the_window_and_its_windows_sources_know_no_qt) {
  for (const Source& source : cppSources()) {
    const bool isFreeOfQt = source.folder() == "app" && (partOfTheWindow(source.path) == "logic" ||
                                                         source.path.ends_with("_windows.cpp"));
    if (!isFreeOfQt) continue;
    for (const std::string& line : linesOf(source.text))
      EXPECT_FALSE(isQtHeader(includedBy(line))) << source.path << ": " << line;
  }
}

TEST(layering, the_disk_knows_no_verb) {
  const Folders kOfTheEngine{"engine/normalization.h", "engine/utf8.h"};
  for (const Source& source : cppSources()) {
    if (source.folder() != "disk") continue;
    for (const std::string& line : linesOf(source.text)) {
      const bool isOfTheEngine = includedBy(line).starts_with("engine/");
      EXPECT_TRUE(!isOfTheEngine || kOfTheEngine.contains(includedBy(line))) << source.path;
    }
  }
}

// Of the folders that stand on compiled data; the forms are compiled when these stand.
TEST(layering, the_data_compiler_takes_only_the_shape_of_rows_from_above_the_engine) {
  for (const Source& source : cppSources()) {
    const bool isOfForms = source.path.starts_with("tools/compile_forms/");
    if (source.folder() != "tools" || isOfForms) continue;
    for (const std::string& line : linesOf(source.text)) {
      const std::string target = includedBy(line);
      const std::string folder = target.substr(0, target.find('/'));
      const bool isAbove = folder == "groups" || folder == "dictionary" || folder == "finder";
      EXPECT_TRUE(!isAbove || target == "groups/rule_rows.h") << source.path;
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
