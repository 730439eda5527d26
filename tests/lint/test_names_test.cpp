// SPDX-License-Identifier: GPL-3.0-or-later
// Names of tests are words with underscores, which read as a sentence.
#include <gtest/gtest.h>

#include <regex>

#include "tests/lint/source_tree.h"

namespace odmiennik::lint {
namespace {

// "suite, name" of every test of the sources.
std::vector<std::smatch> testsOf(const std::string& text) {
  static const std::regex kTest(R"(\n(TEST|TEST_F|TEST_P)\((\w+),\s+(\w+)\))");
  return {std::sregex_iterator(text.begin(), text.end(), kTest), std::sregex_iterator()};
}

TEST(test_names, are_words_with_underscores) {
  static const std::regex kWords("[a-z0-9]+(_[a-z0-9]+)*");
  int count = 0;
  for (const Source& source : cppSources())
    for (const std::smatch& test : testsOf(source.text)) {
      EXPECT_TRUE(std::regex_match(test.str(3), kWords)) << source.path << ": " << test.str(3);
      // The suite of a fixture is named as the class that it is.
      EXPECT_TRUE(test.str(1) != "TEST" || std::regex_match(test.str(2), kWords))
          << source.path << ": " << test.str(2);
      ++count;
    }
  EXPECT_GT(count, 1000);
}

}  // namespace
}  // namespace odmiennik::lint
