// SPDX-License-Identifier: GPL-3.0-or-later
// The pages there are and how they are built up.
#include <gtest/gtest.h>

#include "engine/windows1252.h"
#include "tests/help/help_page.h"

namespace odmiennik::help {
namespace {

const std::vector<std::string> kSectionsOfTensePage{
    "Co wyraża",    "Jak się tworzy",    "Nieregularne tematy", "Kiedy się używa", "Przykłady",
    "Typowe błędy", "Co brzmi tak samo", "Ćwiczenia",           "Zobacz też"};

std::vector<const HelpPage*> tensePages() {
  std::vector<const HelpPage*> pages;
  for (const std::string& name : tensePageNames())
    if (const HelpPage* page = findPage(name)) pages.push_back(page);
  return pages;
}

const Section* sectionOf(const std::vector<Section>& sections, std::string_view heading) {
  for (const Section& section : sections)
    if (section.heading == heading) return &section;
  return nullptr;
}

// An example is a list item or a table row with a French part and its Polish translation.
std::size_t examplesOf(const Section& section) {
  std::size_t count = 0;
  for (const char* tag : {"li", "tr"})
    for (const std::string& item : elements(section.markup, tag))
      if (item.find("lang=\"fr\"") != std::string::npos) ++count;
  return count;
}

TEST(help_pages, every_tense_heading_has_its_page) {
  EXPECT_EQ(tensePageNames().size(), 17U);
  for (const std::string& name : tensePageNames()) EXPECT_NE(findPage(name), nullptr) << name;
}

TEST(help_pages, the_welcome_page_and_the_page_of_context_2_exist) {
  EXPECT_NE(findPage("default.htm"), nullptr);
  EXPECT_NE(findPage("JakOdmienic.htm"), nullptr);
}

TEST(help_pages, tense_pages_have_the_same_sections_in_the_same_order) {
  for (const HelpPage* page : tensePages()) {
    std::vector<std::string> headings;
    for (const Section& section : page->sections()) headings.push_back(section.heading);
    EXPECT_EQ(headings, kSectionsOfTensePage) << page->name;
  }
}

TEST(help_pages, tense_pages_have_at_least_eight_examples) {
  for (const HelpPage* page : tensePages()) {
    const std::vector<Section> sections = page->sections();
    const Section* examples = sectionOf(sections, "Przykłady");
    ASSERT_NE(examples, nullptr) << page->name;
    EXPECT_GE(examplesOf(*examples), 8U) << page->name;
  }
}

// The numbered lists of the exercises: the questions and, below their own heading, the answers.
std::vector<std::vector<std::string>> exercisesOf(const HelpPage& page) {
  std::vector<std::vector<std::string>> lists;
  const std::vector<Section> sections = page.sections();
  if (const Section* section = sectionOf(sections, "Ćwiczenia"))
    for (const std::string& list : elements(section->markup, "ol"))
      lists.push_back(elements(list, "li"));
  return lists;
}

TEST(help_pages, tense_pages_have_five_exercises_and_five_answers) {
  for (const HelpPage* page : tensePages()) {
    const auto lists = exercisesOf(*page);
    ASSERT_EQ(lists.size(), 2U) << page->name;
    EXPECT_EQ(lists[0].size(), 5U) << page->name;
    EXPECT_EQ(lists[1].size(), 5U) << page->name;
  }
}

// An answer is checked when its form is marked; a question that holds one gives it away.
TEST(help_pages, every_answer_has_a_checked_form_and_no_question_has) {
  for (const HelpPage& page : allPages()) {
    const auto lists = exercisesOf(page);
    if (lists.empty()) continue;
    ASSERT_EQ(lists.size(), 2U) << page.name;
    for (const std::string& question : lists[0])
      EXPECT_TRUE((HelpPage{"", question}.forms().empty())) << page.name << ": " << question;
    for (const std::string& answer : lists[1])
      EXPECT_FALSE((HelpPage{"", answer}.forms().empty())) << page.name << ": " << answer;
  }
}

// Tables aside, where a reader looks up forms rather than reads them, and the exercises.
TEST(help_pages, tense_pages_have_400_to_900_words_of_text) {
  for (const HelpPage* page : tensePages()) {
    const auto body = page->markup.find("<body");
    const std::string read = page->markup.substr(body, page->markup.find("<h2>Ćwiczenia") - body);
    int words = wordCount(plainText(read));
    for (const std::string& table : elements(read, "table")) words -= wordCount(plainText(table));
    EXPECT_GE(words, 400) << page->name;
    EXPECT_LE(words, 900) << page->name;
  }
}

TEST(help_pages, every_page_has_a_title_a_heading_and_the_style_sheet) {
  for (const HelpPage& page : allPages()) {
    EXPECT_EQ(elements(page.markup, "title").size(), 1U) << page.name;
    EXPECT_EQ(elements(page.markup, "h1").size(), 1U) << page.name;
    EXPECT_NE(page.markup.find("<link rel=\"stylesheet\" href=\"../styl.css\">"), std::string::npos)
        << page.name;
  }
}

TEST(help_pages, no_page_has_scripts_or_styles_of_its_own) {
  for (const HelpPage& page : allPages()) {
    EXPECT_EQ(page.markup.find("<script"), std::string::npos) << page.name;
    EXPECT_EQ(page.markup.find("<style"), std::string::npos) << page.name;
    EXPECT_EQ(page.markup.find(" style="), std::string::npos) << page.name;
  }
}

TEST(help_pages, every_page_is_utf8) {
  for (const HelpPage& page : allPages()) {
    std::string_view rest = page.markup;
    while (!rest.empty()) {
      const int length = engine::decodeUtf8(asUtf8(rest)).length;
      ASSERT_GT(length, 0) << page.name;
      rest.remove_prefix(static_cast<std::size_t>(length));
    }
  }
}

TEST(help_pages, every_tag_that_is_opened_is_closed) {
  const char* kTags[] = {"html", "head", "body", "h1",   "h2",        "h3", "p",
                         "ul",   "ol",   "li",   "b",    "i",         "a",  "table",
                         "tr",   "td",   "th",   "span", "blockquote"};
  for (const HelpPage& page : allPages())
    for (const std::string tag : kTags) {
      std::size_t closed = 0;
      for (auto at = page.markup.find("</" + tag + ">"); at != std::string::npos;
           at = page.markup.find("</" + tag + ">", at + 1))
        ++closed;
      EXPECT_EQ(elements(page.markup, tag).size(), closed) << page.name << ": " << tag;
    }
}

}  // namespace
}  // namespace odmiennik::help
