// SPDX-License-Identifier: GPL-3.0-or-later
// Every link leads somewhere, and every page can be found.
#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <set>

#include "tests/help/help_page.h"
#include "tests/support/utf8_printing.h"
#include "tools/build_help/contents.h"
#include "tools/build_help/files.h"

namespace odmiennik::help {
namespace {

const std::string kHelpFolder = std::string(ODMIENNIK_SOURCE_DIR) + "/help";

std::set<std::string> allNames() {
  std::set<std::string> names;
  for (const HelpPage& page : allPages()) names.insert(page.name);
  return names;
}

// The page that a link on `page` leads to; "#anchor" stays on the page.
std::string targetPage(const HelpPage& page, const std::string& link) {
  const std::string name = link.substr(0, link.find('#'));
  return name.empty() ? page.name : name;
}

bool leadsSomewhere(const HelpPage& page, const std::string& link) {
  const HelpPage* target = findPage(targetPage(page, link));
  if (target == nullptr) return false;
  const auto mark = link.find('#');
  if (mark == std::string::npos) return true;
  const std::vector<std::string> anchors = target->anchors();
  return std::find(anchors.begin(), anchors.end(), link.substr(mark + 1)) != anchors.end();
}

std::set<std::string> reachableFrom(const std::string& start) {
  std::set<std::string> reached{start};
  std::vector<std::string> open{start};
  while (!open.empty()) {
    const HelpPage* page = findPage(open.back());
    open.pop_back();
    if (page == nullptr) continue;
    for (const std::string& link : page->links())
      if (reached.insert(targetPage(*page, link)).second) open.push_back(targetPage(*page, link));
  }
  return reached;
}

TEST(help_links, every_link_leads_to_a_page_and_an_anchor_of_the_help) {
  for (const HelpPage& page : allPages())
    for (const std::string& link : page.links())
      EXPECT_TRUE(leadsSomewhere(page, link)) << page.name << " -> " << link;
}

TEST(help_links, links_are_written_in_ascii) {
  for (const HelpPage& page : allPages())
    for (auto at = page.markup.find("href=\""); at != std::string::npos;
         at = page.markup.find("href=\"", at + 1)) {
      const std::string link = page.markup.substr(at + 6, page.markup.find('"', at + 6) - at - 6);
      EXPECT_TRUE(
          std::all_of(link.begin(), link.end(), [](unsigned char letter) { return letter < 0x80; }))
          << page.name << ": " << link;
    }
}

TEST(help_links, every_page_is_reached_from_the_welcome_page) {
  EXPECT_EQ(reachableFrom("default.htm"), allNames());
}

// The files that the pages of the help show, as they are asked for: "../obrazy/lista.png".
std::set<std::string> shownPictures() {
  static const std::regex picture("<img src=\"([^\"]*)\" alt=\"[^\"]+\">");
  std::set<std::string> shown;
  for (const HelpPage& page : allPages())
    for (std::sregex_iterator at(page.markup.begin(), page.markup.end(), picture), end; at != end;
         ++at)
      shown.insert((*at)[1]);
  return shown;
}

TEST(help_pictures, every_picture_is_shown_on_a_page_and_every_page_shows_a_picture_that_there_is) {
  std::set<std::string> there;
  for (const std::string& name : tools::namesIn(kHelpFolder + "/obrazy", ".png"))
    there.insert("../obrazy/" + name);
  EXPECT_FALSE(there.empty());
  EXPECT_EQ(shownPictures(), there);
}

TEST(help_pictures, what_a_picture_shows_is_also_said) {
  std::size_t pictures = 0;
  for (const HelpPage& page : allPages())
    for (auto at = page.markup.find("<img"); at != std::string::npos;
         at = page.markup.find("<img", at + 1)) {
      const std::string tag = page.markup.substr(at, page.markup.find('>', at) - at);
      EXPECT_TRUE(std::regex_search(tag, std::regex(" alt=\"[^\"]{10,}")))
          << page.name << ": " << tag;
      ++pictures;
    }
  EXPECT_GE(pictures, shownPictures().size());
}

// The package for Debian is to stay small, and a page stands beside the table of contents.
TEST(help_pictures, a_picture_is_small) {
  for (const std::string& name : tools::namesIn(kHelpFolder + "/obrazy", ".png")) {
    const std::string png = tools::readFile(kHelpFolder + "/obrazy/" + name);
    ASSERT_GT(png.size(), 24U) << name;
    const int width =
        static_cast<unsigned char>(png[18]) << 8 | static_cast<unsigned char>(png[19]);
    EXPECT_LE(png.size(), 6000U) << name;
    EXPECT_LE(width, 440) << name;
  }
}

TEST(help_contents, every_page_stands_in_the_table_of_contents) {
  std::set<std::string> listed;
  for (const tools::ContentsEntry& entry : tools::readHelpContents(kHelpFolder).contents)
    listed.emplace(bytesOf(entry.page));
  EXPECT_EQ(listed, allNames());
}

TEST(help_contents, every_page_but_the_welcome_stands_in_the_index) {
  std::set<std::string> listed{"default.htm"};
  for (const tools::IndexEntry& entry : tools::readHelpContents(kHelpFolder).index)
    listed.emplace(bytesOf(entry.page));
  EXPECT_EQ(listed, allNames());
}

TEST(help_contents, no_keyword_of_the_index_stands_twice) {
  std::set<Utf8Text> keywords;
  for (const tools::IndexEntry& entry : tools::readHelpContents(kHelpFolder).index)
    EXPECT_TRUE(keywords.insert(entry.keyword).second) << entry.keyword;
}

}  // namespace
}  // namespace odmiennik::help
