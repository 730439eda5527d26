// SPDX-License-Identifier: GPL-3.0-or-later
// The build of the help: encodings and the project's files.
#include <gtest/gtest.h>
#include <unistd.h>

#include "tools/build_help/ascii_page.h"
#include "tools/build_help/built_page.h"
#include "tools/build_help/compiled_file.h"
#include "tools/build_help/contents.h"
#include "tools/build_help/files.h"
#include "tools/build_help/project_files.h"
#include "tools/build_help/windows1250.h"
#include "tools/compile_data/source_file.h"

namespace odmiennik::tools {
namespace {

// A help folder with two pages and the given contents, removed again at the end of the test.
class HelpFolder {
 public:
  explicit HelpFolder(std::string_view contents)
      : path_(std::filesystem::path(::testing::TempDir()) /
              ("odmiennik_help_folder_" + std::to_string(getpid()))) {
    writeFile(path_ / "strony/default.htm", "<p>");
    writeFile(path_ / "strony" / std::u8string(u8"Passé.htm"), "<p>");
    writeFile(path_ / "spis.txt", contents);
    writeFile(path_ / "indeks.txt", "hasło | default.htm\n");
  }
  HelpFolder(const HelpFolder&) = delete;
  HelpFolder& operator=(const HelpFolder&) = delete;
  ~HelpFolder() { std::filesystem::remove_all(path_); }

  [[nodiscard]] std::string path() const { return path_.string(); }

 private:
  std::filesystem::path path_;
};

TEST(ascii_page, letters_beyond_ascii_become_numeric_entities) {
  EXPECT_EQ(asciiPage("é–ł"), "&#233;&#8211;&#322;");
}

TEST(ascii_page, the_link_to_the_style_sheet_gets_its_type) {
  EXPECT_EQ(asciiPage("<link rel=\"stylesheet\" href=\"../styl.css\">"),
            "<link rel=\"stylesheet\" type=\"text/css\" href=\"../styl.css\">");
}

TEST(ascii_page, a_page_in_another_encoding_is_refused) {
  EXPECT_THROW(static_cast<void>(asciiPage("caf\xE9")), std::runtime_error);
}

TEST(built_page, what_the_tests_read_in_a_form_stays_with_the_sources) {
  EXPECT_EQ(forViewers("je <b class=\"f\" title=\"parler 0\">parle</b>, <b>-e</b>"),
            "je <b>parle</b>, <b>-e</b>");
}

TEST(built_page, cells_of_tables_stand_side_by_side) {
  EXPECT_EQ(forViewers("<table class=\"odmiana\"><tr>"),
            "<table cellspacing=\"0\" class=\"odmiana\"><tr>");
}

TEST(built_page, is_set_and_in_ascii) {
  EXPECT_EQ(builtPage("<b class=\"f\" title=\"aller 0\">é</b> -é w"),
            "<b>&#233;</b> &#8209;&#233; w");
}

TEST(windows1250, polish_letters_have_their_bytes) {
  EXPECT_EQ(windows1250("zażółć gęślą jaźń"), "za\xBF\xF3\xB3\xE6 g\xEA\x9Cl\xB9 ja\x9F\xF1");
}

TEST(windows1250, a_letter_outside_is_refused) {
  EXPECT_THROW(static_cast<void>(windows1250("û")), std::runtime_error);
}

TEST(windows1250, in_markup_a_letter_outside_becomes_an_entity) {
  EXPECT_EQ(windows1250Markup("dû & \"ł\""), "d&#251; &amp; &quot;\xB3&quot;");
}

TEST(help_contents_reader, reads_level_title_and_page) {
  const HelpFolder folder("1 | Początek | default.htm\n2 | Czas | Passé.htm\n");
  const std::vector<ContentsEntry> entries = readHelpContents(folder.path()).contents;
  ASSERT_EQ(entries.size(), 2U);
  EXPECT_EQ(entries[1].level, 2);
  EXPECT_EQ(entries[1].title, "Czas");
  EXPECT_EQ(entries[1].page, "Passé.htm");
}

TEST(help_contents_reader, a_page_that_is_missing_is_refused) {
  const HelpFolder folder("1 | Początek | Brak.htm\n");
  EXPECT_THROW(static_cast<void>(readHelpContents(folder.path())), SourceError);
}

TEST(help_contents_reader, a_level_that_skips_one_is_refused) {
  const HelpFolder folder("1 | Początek | default.htm\n3 | Czas | Passé.htm\n");
  EXPECT_THROW(static_cast<void>(readHelpContents(folder.path())), SourceError);
}

TEST(help_contents_reader, a_line_without_a_title_is_refused) {
  const HelpFolder folder("1 | | default.htm\n");
  EXPECT_THROW(static_cast<void>(readHelpContents(folder.path())), SourceError);
}

TEST(project_files,
     the_project_names_every_page_and_picture_the_default_topic_and_the_polish_language) {
  const std::string project = projectFile({"default.htm", "Passé.htm"}, {"lista.png"});
  EXPECT_NE(project.find("\r\nDefault topic=strony\\default.htm\r\n"), std::string::npos);
  EXPECT_NE(project.find("\r\nLanguage=0x415 Polish (Poland)\r\n"), std::string::npos);
  EXPECT_NE(project.find("\r\nstrony\\Passé.htm\r\n"), std::string::npos);
  EXPECT_NE(project.find("\r\nobrazy\\lista.png\r\n"), std::string::npos);
}

TEST(project_files, deeper_entries_stand_in_a_list_of_their_own) {
  const std::string text = contentsFile({{1, "A", "a.htm"}, {2, "B", "b.htm"}, {1, "C", "c.htm"}});
  const auto placeOf = [&](const char* part) { return text.find(part); };
  const auto inner = text.find("<UL>", placeOf("a.htm"));
  const auto innerEnd = text.find("</UL>");
  EXPECT_LT(placeOf("a.htm"), inner);
  EXPECT_LT(inner, placeOf("b.htm"));
  EXPECT_LT(placeOf("b.htm"), innerEnd);
  EXPECT_LT(innerEnd, placeOf("c.htm"));
}

TEST(project_files, links_of_the_index_are_percent_encoded) {
  EXPECT_NE(indexFile({{"czas", "Passé.htm"}}).find("\"strony/Pass%C3%A9.htm\""),
            std::string::npos);
}

TEST(compiled_file, context_2_names_the_place_of_its_page_among_the_strings) {
  const std::string strings = std::string("\0Aspekt\0", 8) + std::string(kContextPage) + '\0';
  EXPECT_EQ(contextRecord(strings), std::string("\x08\0\0\0\x02\0\0\0\x08\0\0\0", 12));
}

TEST(compiled_file, strings_without_the_page_of_the_context_are_refused) {
  const std::string strings = std::string("\0/home/", 7) + std::string(kContextPage) + '\0';
  EXPECT_THROW(static_cast<void>(contextRecord(strings)), std::runtime_error);
}

// The head of a help file and its compiler's record, with the given letter in every byte of a time.
std::string helpFileOfTime(char letter) {
  const std::string time(4, letter);
  return std::string("ITSF\3\0\0\0\x60\0\0\0\1\0\0\0", 16) + time + "pages" +
         std::string("\3\0\0\0\x0A\0\4\0", 8) + time +
         std::string("\x09\0\x16\0HHA Version 4.74.8702", 25);
}

TEST(compiled_file, both_times_are_taken_out_and_nothing_else) {
  EXPECT_EQ(withoutTimes(helpFileOfTime('t')), helpFileOfTime('\0'));
}

TEST(compiled_file, a_file_of_another_kind_is_refused) {
  EXPECT_THROW(static_cast<void>(withoutTimes("ITSP" + helpFileOfTime('t'))), std::runtime_error);
}

TEST(compiled_file, a_file_whose_compiler_keeps_its_time_elsewhere_is_refused) {
  std::string file = helpFileOfTime('t');
  file.replace(file.find("\x0A"), 1, "\x0B");
  EXPECT_THROW(static_cast<void>(withoutTimes(file)), std::runtime_error);
}

}  // namespace
}  // namespace odmiennik::tools
