// SPDX-License-Identifier: GPL-3.0-or-later
// Every damaged file that is kept: the message names the damage, and what is good is still used.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

#include "dictionary/user_verbs.h"
#include "disk/settings.h"
#include "tests/unit/dictionary/program_files.h"

namespace odmiennik::dictionary {
namespace {

namespace fs = std::filesystem;

using odmiennik::testing::ProgramFolder;
using odmiennik::testing::RecordedMessages;
using odmiennik::testing::verb;
using Texts = std::vector<std::string>;

// The files of a folder by name, without extension.
std::map<std::string, std::string> brokenFiles(const std::string& folder) {
  std::map<std::string, std::string> contents;
  for (const auto& entry : fs::directory_iterator(ODMIENNIK_SOURCE_DIR "/tests/broken/" + folder)) {
    std::ifstream file(entry.path(), std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    contents[entry.path().stem().string()] = content.str();
  }
  return contents;
}

TEST(broken_user_verbs, are_reported_once_and_the_other_records_are_found) {
  const auto files = brokenFiles("user_verbs");
  ASSERT_GE(files.size(), 13U);
  for (const auto& [damage, content] : files) {
    const ProgramFolder folder;
    RecordedMessages messages;
    folder.write("Czasowniki.dat", content);
    UserVerbsFile verbs(folder.prefix(), 3, messages);
    engine::FormTable forms;
    std::uint8_t storedAux = 0;
    EXPECT_TRUE(verbs.load("rendre", forms, storedAux)) << damage;
    EXPECT_FALSE(verbs.load("finir", forms, storedAux)) << damage;
    EXPECT_EQ(verbs.infinitives(), (Texts{"aimer", "rendre"})) << damage;
    EXPECT_EQ(messages.texts, Texts{"Plik czasowników użytkownika jest uszkodzony (czasownik 2)."})
        << damage;
  }
}

TEST(broken_user_verbs, keep_their_damaged_line_through_a_save_and_a_delete) {
  for (const auto& [damage, content] : brokenFiles("user_verbs")) {
    const ProgramFolder folder;
    RecordedMessages messages;
    folder.write("Czasowniki.dat", content);
    UserVerbsFile verbs(folder.prefix(), 3, messages);
    EXPECT_EQ(verbs.save(verb("courir")), SaveResult::appended) << damage;
    EXPECT_EQ(verbs.remove("courir"), DeleteResult::deleted) << damage;
    EXPECT_EQ(folder.read("Czasowniki.dat"), content + "\r\n") << damage;
  }
}

TEST(broken_settings, are_read_up_to_the_damage) {
  const std::map<std::string, int> goodFields{{"empty", 0},
                                              {"one_line_only", 1},
                                              {"four_lines_only", 4},
                                              {"first_line_is_a_word", 0},
                                              {"colour_with_decimals", 1},
                                              {"colour_too_large", 2},
                                              {"count_missing", 3},
                                              {"run_count_is_zz", 4},
                                              {"run_count_of_odd_length", 4},
                                              {"run_count_not_encoded", 4},
                                              {"run_count_too_large", 4},
                                              {"zero_bytes", 0}};
  const std::int32_t values[] = {3, 255, 65280, 77};
  const auto files = brokenFiles("settings");
  EXPECT_EQ(files.size(), goodFields.size());
  for (const auto& [damage, content] : files) {
    const ProgramFolder folder;
    folder.write("Werbolin.cfg", content);
    disk::Settings settings{-1, -1, -1, -1, -1};
    EXPECT_EQ(disk::readSettingsFile(folder.prefix(), settings), disk::SettingsRead::damaged)
        << damage;
    const std::int32_t found[] = {settings.userVerbCount, settings.moodColour, settings.tenseColour,
                                  settings.conjugationCount};
    for (int i = 0; i < 4; ++i)
      EXPECT_EQ(found[i], i < goodFields.at(damage) ? values[i] : -1) << damage << " " << i;
    EXPECT_EQ(settings.runCount, -1) << damage;
  }
}

}  // namespace
}  // namespace odmiennik::dictionary
