// SPDX-License-Identifier: GPL-3.0-or-later
// The prefix of file names.
#include "disk/program_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace odmiennik::disk {
namespace {

const Utf8Text kSeparator(1, static_cast<char>(std::filesystem::path::preferred_separator));

TEST(app_folder, puts_the_systems_separator_behind_a_folder) {
  EXPECT_EQ(AppFolder("/opt/odmiennik"), "/opt/odmiennik" + kSeparator);
}

TEST(app_folder, drops_blanks_at_the_end_and_keeps_those_at_the_front) {
  EXPECT_EQ(AppFolder("  /opt/o  "), "  /opt/o" + kSeparator);
}

// deliberate: a drive's root.
TEST(app_folder, is_empty_for_a_folder_that_ends_in_a_separator_of_any_kind) {
  for (const char* folder : {"/", "C:\\", "/opt/o/", "C:\\o\\", "/opt/o/  "})
    EXPECT_EQ(AppFolder(folder), "") << folder;
}

}  // namespace
}  // namespace odmiennik::disk
