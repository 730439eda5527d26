// SPDX-License-Identifier: GPL-3.0-or-later
// One hand: what help/README.md settles about titles, links, marks and signs.
#include <gtest/gtest.h>

#include <regex>

#include "tests/help/help_page.h"

namespace odmiennik::help {
namespace {

// "Passé composé – czas przeszły złożony" -> "Passé composé"
std::string shortTitle(const std::string& title) {
  return title.substr(0, std::min(title.find(" –"), title.find(':')));
}

std::string titleOf(const HelpPage& page) { return plainText(elements(page.markup, "h1").at(0)); }

std::string bodyOf(const HelpPage& page) { return page.markup.substr(page.markup.find("<body")); }

std::string without(const std::string& text, const char* pattern) {
  return std::regex_replace(text, std::regex(pattern), "");
}

// The links of a piece of markup, "page.htm" and what the reader sees, with percent signs resolved.
std::vector<std::pair<std::string, std::string>> namedLinks(const std::string& markup) {
  std::vector<std::pair<std::string, std::string>> found;
  for (auto at = markup.find("<a "); at != std::string::npos; at = markup.find("<a ", at + 1)) {
    const std::string link = markup.substr(at, markup.find("</a>", at) + 4 - at);
    found.emplace_back(HelpPage{"", link}.links().at(0), plainText(link));
  }
  return found;
}

// What stands outside every element that is marked as French.
std::string outsideFrench(std::string markup) {
  for (const std::string tag : {"i", "td", "th", "span"}) {
    const std::string open = "<" + tag + " lang=\"fr\">";
    const std::string close = "</" + tag + ">";
    for (auto at = markup.find(open); at != std::string::npos; at = markup.find(open))
      markup.erase(at, markup.find(close, at) + close.size() - at);
  }
  return markup;
}

TEST(help_style, the_title_in_the_window_is_the_heading_of_the_page) {
  for (const HelpPage& page : allPages())
    EXPECT_EQ(plainText(elements(page.markup, "title").at(0)), titleOf(page)) << page.name;
}

TEST(help_style, a_tense_page_is_called_by_its_french_name_and_then_the_polish_one) {
  for (const std::string& name : tensePageNames()) {
    const std::string heading = elements(findPage(name)->markup, "h1").at(0);
    EXPECT_EQ(heading.rfind("<span lang=\"fr\">", 0), 0U) << name;
    EXPECT_NE(heading.find("</span> – "), std::string::npos) << name;
  }
}

TEST(help_style, every_page_ends_with_pages_to_go_on_with_under_their_own_names) {
  for (const HelpPage& page : allPages()) {
    const std::vector<Section> sections = page.sections();
    ASSERT_FALSE(sections.empty()) << page.name;
    EXPECT_EQ(sections.back().heading, "Zobacz też") << page.name;
    for (const auto& [target, shown] : namedLinks(sections.back().markup)) {
      const HelpPage* other = findPage(target);
      ASSERT_NE(other, nullptr) << page.name << ": " << target;
      EXPECT_EQ(shown, shortTitle(titleOf(*other))) << page.name;
    }
  }
}

TEST(help_style, a_form_is_marked_as_french) {
  for (const HelpPage& page : allPages())
    EXPECT_EQ(outsideFrench(page.markup).find("class=\"f\""), std::string::npos) << page.name;
}

TEST(help_style, endings_and_single_letters_are_bold_and_not_italic) {
  const std::regex ending("<i lang=\"fr\">-[^ <]*</i>");
  for (const HelpPage& page : allPages()) {
    std::smatch match;
    EXPECT_FALSE(std::regex_search(page.markup, match, ending)) << page.name << ": " << match.str();
  }
}

// A form is read with its pronoun; the imperative has none, so its rows name the person.
TEST(help_style, in_a_table_of_forms_each_cell_has_its_pronoun_and_no_row_a_heading) {
  for (const std::string& name : tensePageNames()) {
    if (name.find("Impératif") != std::string::npos) continue;
    for (const std::string& table : elements(findPage(name)->markup, "table"))
      for (const std::string& row : elements(table, "tr"))
        EXPECT_TRUE(elements(row, "th").empty() || elements(row, "td").empty())
            << name << ": " << row;
  }
}

TEST(help_style, apostrophes_are_the_ones_of_the_keyboard) {
  for (const HelpPage& page : allPages())
    EXPECT_EQ(page.markup.find("’"), std::string::npos) << page.name;
}

// Words of the window are quoted as they stand there, with three dots.
TEST(help_style, three_dots_are_one_sign) {
  for (const HelpPage& page : allPages())
    EXPECT_EQ(without(bodyOf(page), "„[^”]*”").find("..."), std::string::npos) << page.name;
}

TEST(help_style, no_blank_before_a_mark_lets_the_line_break) {
  const std::regex blank("[^ \n] [!?;:](?![a-z)])");
  for (const HelpPage& page : allPages()) {
    const std::string body = bodyOf(page);
    std::smatch match;
    EXPECT_FALSE(std::regex_search(body, match, blank)) << page.name << ": " << match.str();
  }
}

TEST(help_style, quotation_marks_are_the_polish_ones) {
  for (const HelpPage& page : allPages()) {
    const std::string text =
        without(bodyOf(page), "<[^>]*>|edycja \"parler\"|odmiennik \"se laver\"");
    EXPECT_EQ(text.find('"'), std::string::npos) << page.name;
    EXPECT_EQ(text.find("“"), std::string::npos) << page.name;
  }
}

}  // namespace
}  // namespace odmiennik::help
