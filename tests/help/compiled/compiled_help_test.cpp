// SPDX-License-Identifier: GPL-3.0-or-later
// Werbolin.chm as it was built: every page is in it, whole, under the name by which it is asked
// for.
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "tests/help/compiled/help_file.h"
#include "tools/build_help/built_page.h"
#include "tools/build_help/contents.h"
#include "tools/build_help/departures_page.h"
#include "tools/build_help/files.h"
#include "tools/build_help/project_files.h"

namespace odmiennik::help {
namespace {

const std::filesystem::path kSources = std::filesystem::path(ODMIENNIK_SOURCE_DIR) / "help";

std::string pageSource(const std::string& name) {
  static const Utf8Text departures =
      tools::departuresMarkup(tools::readDepartureGroups((kSources / "odstepstwa.txt").string()),
                              tools::readDepartures(ODMIENNIK_DEPARTURES));
  const Utf8Text typed(
      asUtf8(tools::readFile(kSources / "strony" / std::u8string(name.begin(), name.end()))));
  return std::string(bytesOf(tools::withDepartures(typed, departures)));
}

// The number at a place of a binary table, least significant byte first.
std::uint32_t numberAt(const std::string& bytes, std::size_t place) {
  std::uint32_t number = 0;
  for (std::size_t i = 4; i-- > 0;)
    number = number << 8 | static_cast<unsigned char>(bytes.at(place + i));
  return number;
}

// The page that a help context number leads to: the table "#IVB" holds its own length and then
// pairs of a context and a place in "#STRINGS".
std::string pageOfContext(const HelpFile& file, std::uint32_t context) {
  const std::string table = file.content("/#IVB").value_or("");
  const std::string strings = file.content("/#STRINGS").value_or("");
  for (std::size_t at = 4; at + 8 <= table.size(); at += 8)
    if (numberAt(table, at) == context) return strings.c_str() + numberAt(table, at + 4);
  return {};
}

TEST(compiled_help, holds_every_page_as_it_was_written) {
  const HelpFile file(ODMIENNIK_COMPILED_HELP);
  const std::vector<std::string> names = tools::namesIn(kSources / "strony", ".htm");
  ASSERT_GE(names.size(), 18U);
  for (const std::string& name : names)
    EXPECT_EQ(file.content("/strony/" + name), tools::builtPage(pageSource(name))) << name;
}

TEST(compiled_help, holds_the_style_sheets) {
  const HelpFile file(ODMIENNIK_COMPILED_HELP);
  for (const char* sheet : tools::kStyleSheets)
    EXPECT_EQ(file.content(std::string("/") + sheet), tools::readFile(kSources / sheet)) << sheet;
}

TEST(compiled_help, holds_the_pictures_byte_for_byte) {
  const HelpFile file(ODMIENNIK_COMPILED_HELP);
  const std::vector<std::string> names = tools::namesIn(kSources / "obrazy", ".png");
  ASSERT_GE(names.size(), 2U);
  for (const std::string& name : names)
    EXPECT_EQ(file.content("/obrazy/" + name), tools::readFile(kSources / "obrazy" / name)) << name;
}

TEST(compiled_help, holds_the_table_of_contents_and_the_index) {
  const HelpFile file(ODMIENNIK_COMPILED_HELP);
  const tools::HelpContents contents = tools::readHelpContents(kSources.string());
  EXPECT_EQ(file.content("/Werbolin.hhc"), tools::contentsFile(contents.contents));
  EXPECT_EQ(file.content("/Werbolin.hhk"), tools::indexFile(contents.index));
}

TEST(compiled_help, starts_on_the_welcome_page) {
  const HelpFile file(ODMIENNIK_COMPILED_HELP);
  const std::string system = file.content("/#SYSTEM").value_or("");
  EXPECT_NE(system.find("strony\\default.htm"), std::string::npos);
}

TEST(compiled_help, context_2_is_the_page_about_conjugating_a_verb) {
  const HelpFile file(ODMIENNIK_COMPILED_HELP);
  EXPECT_EQ(pageOfContext(file, 2), "strony/JakOdmienic.htm");
}

// That the file is whole is told by the other tests; the folder's name is long enough to move what
// stands behind it.
TEST(compiled_help, compiled_again_in_another_folder_it_is_the_same_byte_for_byte) {
  const std::filesystem::path folder =
      std::filesystem::path(::testing::TempDir()) /
      ("a_folder_with_a_long_name_" + std::to_string(std::random_device{}()));
  const std::string command = std::string(ODMIENNIK_COMPILE_HELP) +
                              " -DPROJECT=" + (folder / "project").string() +
                              " -DRESULT=" + (folder / "Werbolin.chm").string() + " -P " +
                              (kSources / "compile_help.cmake").string();
  ASSERT_EQ(std::system(command.c_str()), 0) << command;
  const std::string again = tools::readFile(folder / "Werbolin.chm");
  std::filesystem::remove_all(folder);
  EXPECT_TRUE(again == tools::readFile(ODMIENNIK_COMPILED_HELP));
}

TEST(compiled_help, a_page_that_was_never_written_is_not_found) {
  const HelpFile file(ODMIENNIK_COMPILED_HELP);
  EXPECT_EQ(file.content("/strony/Brak.htm"), std::nullopt);
}

}  // namespace
}  // namespace odmiennik::help
