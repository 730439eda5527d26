// The prefix of file names.
#include "dictionary/program_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace odmiennik::dictionary {
namespace {

const std::string kSeparator(1, static_cast<char>(std::filesystem::path::preferred_separator));

TEST(AppFolder, PutsTheSystemsSeparatorBehindAFolder) {
  EXPECT_EQ(AppFolder("/opt/odmiennik"), "/opt/odmiennik" + kSeparator);
}

TEST(AppFolder, DropsBlanksAtTheEndAndKeepsThoseAtTheFront) {
  EXPECT_EQ(AppFolder("  /opt/o  "), "  /opt/o" + kSeparator);
}

// deliberate: a drive's root.
TEST(AppFolder, IsEmptyForAFolderThatEndsInASeparatorOfAnyKind) {
  for (const char* folder : {"/", "C:\\", "/opt/o/", "C:\\o\\", "/opt/o/  "})
    EXPECT_EQ(AppFolder(folder), "") << folder;
}

}  // namespace
}  // namespace odmiennik::dictionary
