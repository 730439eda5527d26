// SPDX-License-Identifier: GPL-3.0-or-later
// Every source file names its licence, so that a copy of one file alone names it too.
#include <gtest/gtest.h>

#include "tests/lint/source_tree.h"

namespace odmiennik::lint {
namespace {

const std::string kLicence = "SPDX-License-Identifier: GPL-3.0-or-later";

// What people write; tables that programs write and damaged files have no place for a comment.
bool isWrittenByHand(const Source& source) {
  const bool isCode = hasEnding(
      source.path, {".h", ".cpp", ".py", ".cmake", "CMakeLists.txt", ".css", ".svg", ".1"});
  const bool isData =
      (source.folder() == "data" || source.folder() == "help") && source.path.ends_with(".txt");
  return isCode || isData || source.text.starts_with("#!");
}

// The first line is that of the interpreter where there is one.
bool namesTheLicence(const std::string& text) {
  const std::vector<std::string> lines = linesOf(text.substr(0, 500));
  const bool firstIsTaken = text.starts_with("#!");
  const std::size_t place = firstIsTaken ? 1 : 0;
  return lines.size() > place && lines[place].find(kLicence) != std::string::npos;
}

TEST(licence, every_file_written_by_hand_names_it_at_its_top) {
  std::size_t found = 0;
  for (const Source& source : sources({""})) {
    if (!isWrittenByHand(source)) continue;
    ++found;
    EXPECT_TRUE(namesTheLicence(source.text)) << source.path;
  }
  EXPECT_GT(found, 700U);
}

TEST(licence, its_text_goes_with_the_project) {
  const std::string text = contentsOf(std::filesystem::path(ODMIENNIK_SOURCE_DIR) / "LICENSE");
  EXPECT_NE(text.find("GNU GENERAL PUBLIC LICENSE\n                       Version 3"),
            std::string::npos);
  EXPECT_NE(text.find("END OF TERMS AND CONDITIONS"), std::string::npos);
}

}  // namespace
}  // namespace odmiennik::lint
