// SPDX-License-Identifier: GPL-3.0-or-later
// The settings file: five numbers, the last one encoded.
#include "disk/settings.h"

#include <gtest/gtest.h>

#include "tests/unit/dictionary/faulty_files.h"
#include "tests/unit/dictionary/program_files.h"

namespace odmiennik::disk {

bool operator==(const Settings& left, const Settings& right) {
  return settingsText(left) == settingsText(right);
}
void PrintTo(const Settings& settings, std::ostream* out) { *out << settingsText(settings); }

namespace {

using odmiennik::testing::FaultyFiles;
using odmiennik::testing::ProgramFolder;
using Texts = std::vector<std::string>;

constexpr Settings kFresh{-1, -2, -3, -4, -5};

// What is read of a text, and whether all of it could be.
Settings parsed(std::string_view text, bool isWhole) {
  Settings settings = kFresh;
  EXPECT_EQ(parseSettings(text, settings), isWhole) << text;
  return settings;
}

TEST(settings_codec, writes_five_lines) {
  EXPECT_EQ(settingsText({3, 255, -2147483630, 1000, 12}),
            "3\r\n255\r\n-2147483630\r\n1000\r\n1112\r\n");
}

TEST(settings_codec, a_first_run_is_stored_as_eleven) {
  EXPECT_EQ(settingsText({}), "0\r\n0\r\n0\r\n0\r\n10\r\n");
  EXPECT_EQ(encodeRunCount(1), "11");
}

TEST(settings_codec, encodes_each_digit) {
  EXPECT_EQ(encodeRunCount(0), "10");
  EXPECT_EQ(encodeRunCount(12), "1112");
  EXPECT_EQ(encodeRunCount(255), "121515");
  EXPECT_EQ(encodeRunCount(-5), "0D15");
}

TEST(settings_codec, reads_back_what_it_writes) {
  constexpr std::int32_t kLeast = -2'147'483'647 - 1, kMost = 2'147'483'647;
  for (const Settings& settings :
       {Settings{0, 0, 0, 0, 0}, Settings{kMost, kMost, kMost, kMost, kMost},
        Settings{kLeast, kLeast, kLeast, kLeast, kLeast}, Settings{5, 255, 65280, 77, 1234567890}})
    EXPECT_EQ(parsed(settingsText(settings), true), settings);
}

TEST(settings_codec, fields_end_at_line_ends_or_commas) {
  constexpr Settings kExpected{1, 2, 3, 4, 12};
  for (const char* text :
       {"1\r\n2\r\n3\r\n4\r\n1112\r\n", "1\n2\n3\n4\n1112", "1\r2\r3\r4\r1112\r", "1,2,3,4,1112",
        " 1 , 2\n\"3\",\"4\"\r\n 1112 \r\n", "+1,2,3,4,1112,rest", "1,2,3,4,1112\r\nrest"})
    EXPECT_EQ(parsed(text, true), kExpected);
}

TEST(settings_codec, takes_the_hexadecimal_letters_in_either_case) {
  EXPECT_EQ(parsed("1\n2\n3\n4\n0d15", true), (Settings{1, 2, 3, 4, -5}));
}

TEST(settings_codec, a_fifth_line_that_is_no_encoded_number_is_an_error) {
  for (const char* line : {"zz", "1", "111", "", "0x10", "1 12", "110E15", "FF", "E0", "21", "-1",
                           "12141714181316141718", "1g"})
    EXPECT_EQ(parsed("1\n2\n3\n4\n" + std::string(line), false), (Settings{1, 2, 3, 4, -5}))
        << line;
}

TEST(settings_codec, a_line_that_is_no_number_of_32_bits_ends_the_reading) {
  for (const char* line :
       {"", "1.5", "1,5x", "2147483648", "-2147483649", "&H10", "1e3", "abc", "- 1", "+-1", "--1"})
    EXPECT_EQ(parsed("7\n8\n" + std::string(line) + "\n9\n10", false).tenseColour,
              std::string_view(line) == "1,5x" ? 1 : -3)
        << line;
}

TEST(settings_codec, missing_lines_keep_what_stood_before) {
  EXPECT_EQ(parsed("", false), kFresh);
  EXPECT_EQ(parsed("1", false), (Settings{1, -2, -3, -4, -5}));
  EXPECT_EQ(parsed("1\n2\n3\n4", false), (Settings{1, 2, 3, 4, -5}));
  EXPECT_EQ(parsed("1\n2\n3\n4\n", false), (Settings{1, 2, 3, 4, -5}));
}

class SettingsFile : public ::testing::Test {
 protected:
  ProgramFolder folder_;
  Settings settings_ = kFresh;
};

TEST_F(SettingsFile, is_missing_at_first) {
  EXPECT_EQ(readSettingsFile(folder_.prefix(), settings_), SettingsRead::missing);
  EXPECT_EQ(settings_, kFresh);
}

TEST_F(SettingsFile, is_read_back_as_written) {
  ASSERT_TRUE(writeSettingsFile(folder_.prefix(), {1, 2, 3, 4, 5}));
  EXPECT_EQ(folder_.names(), Texts{"Werbolin.cfg"});
  EXPECT_EQ(readSettingsFile(folder_.prefix(), settings_), SettingsRead::read);
  EXPECT_EQ(settings_, (Settings{1, 2, 3, 4, 5}));
}

TEST_F(SettingsFile, is_found_and_replaced_without_regard_to_case) {
  folder_.write("WERBOLIN.CFG", "1\r\n2\r\n3\r\n4\r\n15\r\n");
  EXPECT_EQ(readSettingsFile(folder_.prefix(), settings_), SettingsRead::read);
  ASSERT_TRUE(writeSettingsFile(folder_.prefix(), settings_));
  EXPECT_EQ(folder_.names(), Texts{"WERBOLIN.CFG"});
}

TEST_F(SettingsFile, that_is_damaged_fills_what_it_can) {
  folder_.write("Werbolin.cfg", "1\r\n2\r\nx\r\n");
  EXPECT_EQ(readSettingsFile(folder_.prefix(), settings_), SettingsRead::damaged);
  EXPECT_EQ(settings_, (Settings{1, 2, -3, -4, -5}));
}

TEST_F(SettingsFile, that_is_a_folder_is_unreadable) {
  std::filesystem::create_directory(folder_.path() / "Werbolin.cfg");
  EXPECT_EQ(readSettingsFile(folder_.prefix(), settings_), SettingsRead::unreadable);
  EXPECT_FALSE(writeSettingsFile(folder_.prefix(), settings_));
}

TEST_F(SettingsFile, is_not_read_to_an_endless_end) {
  folder_.write("Werbolin.cfg", "1\n2\n3\n4\n15\n" + std::string(1'000'000, 'x'));
  EXPECT_EQ(readSettingsFile(folder_.prefix(), settings_), SettingsRead::read);
  folder_.write("Werbolin.cfg", "9\n2\n3\n4\n" + std::string(1'000'000, '1'));
  EXPECT_EQ(readSettingsFile(folder_.prefix(), settings_), SettingsRead::damaged);
  EXPECT_EQ(settings_, (Settings{9, 2, 3, 4, 5}));
}

TEST_F(SettingsFile, that_is_too_long_is_not_read_with_a_halved_line) {
  folder_.write("Werbolin.cfg", "1\n2\n3\n4" + std::string(1'000'000, ' ') + "4\n15\n");
  EXPECT_EQ(readSettingsFile(folder_.prefix(), settings_), SettingsRead::damaged);
  EXPECT_EQ(settings_, (Settings{1, 2, 3, -4, -5}));
}

TEST_F(SettingsFile, is_the_old_one_or_the_new_one_whenever_the_power_fails) {
  const std::string before = settingsText({1, 2, 3, 4, 5}), after = settingsText({6, 7, 8, 9, 10});
  bool hasFailed = true;
  int step = 0;
  for (; hasFailed && step < 100; ++step) {
    folder_.write("Werbolin.cfg", before);
    FaultyFiles files(step);
    const bool isWritten = writeSettingsFile(folder_.prefix(), {6, 7, 8, 9, 10}, files);
    hasFailed = files.hasFailed();
    EXPECT_EQ(folder_.read("Werbolin.cfg"), isWritten ? after : before) << step;
    EXPECT_TRUE(writeSettingsFile(folder_.prefix(), {}));
    EXPECT_EQ(folder_.names(), Texts{"Werbolin.cfg"});
  }
  EXPECT_GT(step, 4);
  EXPECT_FALSE(hasFailed);
}

}  // namespace
}  // namespace odmiennik::disk
