// SPDX-License-Identifier: GPL-3.0-or-later
// The engine and the rules neither print nor read, write or end anything: they only compute.
#include <gtest/gtest.h>

#include <set>

#include "tests/lint/source_tree.h"

namespace odmiennik::lint {
namespace {

const std::set<std::string> kSilentFolders{"engine", "groups"};
const std::set<std::string> kTalkingHeaders{"iostream", "ostream",  "istream", "fstream",
                                            "cstdio",   "stdio.h",  "print",   "filesystem",
                                            "unistd.h", "syslog.h", "cstdlib", "stdlib.h"};
const std::vector<std::string> kTalkingCalls{"printf(", "puts(", "std::cout", "std::cerr",
                                             "fopen(",  "exit(", "abort("};

TEST(engine_silence, the_engine_includes_no_header_that_talks_to_the_system) {
  for (const Source& source : cppSources()) {
    if (!kSilentFolders.contains(source.folder())) continue;
    for (const std::string& line : linesOf(source.text))
      EXPECT_FALSE(kTalkingHeaders.contains(includedBy(line))) << source.path << ": " << line;
  }
}

TEST(engine_silence, the_engine_calls_nothing_that_prints_or_ends_the_program) {
  for (const Source& source : cppSources()) {
    if (!kSilentFolders.contains(source.folder())) continue;
    for (const std::string& call : kTalkingCalls)
      EXPECT_EQ(source.text.find(call), std::string::npos) << source.path << ": " << call;
  }
}

}  // namespace
}  // namespace odmiennik::lint
