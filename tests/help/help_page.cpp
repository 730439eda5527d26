// SPDX-License-Identifier: GPL-3.0-or-later
// Taking pages apart. The pages are our own, so plain patterns suffice.
#include "tests/help/help_page.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <regex>
#include <sstream>

#include "app/logic/tense_topics.h"
#include "tools/build_help/departures_page.h"
#include "tools/build_help/files.h"

namespace odmiennik::help {
namespace {

using Matches = std::vector<std::smatch>;

Matches matches(const std::string& text, const char* pattern) {
  const std::regex expression(pattern);
  return {std::sregex_iterator(text.begin(), text.end(), expression), std::sregex_iterator()};
}

std::string withoutPercents(const std::string& link) {
  std::string name;
  for (std::size_t i = 0; i < link.size(); ++i) {
    if (link[i] == '%' && i + 2 < link.size()) {
      name += static_cast<char>(std::stoi(link.substr(i + 1, 2), nullptr, 16));
      i += 2;
    } else {
      name += link[i];
    }
  }
  return name;
}

void replaceAll(std::string& text, std::string_view from, std::string_view to) {
  for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
}

std::string withEntitiesResolved(std::string text) {
  const std::pair<const char*, const char*> kEntities[] = {
      {"&nbsp;", " "}, {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}};
  for (const auto& [entity, letter] : kEntities) replaceAll(text, entity, letter);
  return text;
}

// A page as a reader meets it: with what the build puts in.
std::string pageSource(const std::filesystem::path& path) {
  static const Utf8Text departures = tools::departuresMarkup(
      tools::readDepartureGroups(ODMIENNIK_SOURCE_DIR "/help/odstepstwa.txt"),
      tools::readDepartures(ODMIENNIK_DEPARTURES));
  const Utf8Text typed(asUtf8(tools::readFile(path)));
  return std::string(bytesOf(tools::withDepartures(typed, departures)));
}

std::vector<HelpPage> readPages() {
  const std::filesystem::path folder = std::filesystem::path(ODMIENNIK_SOURCE_DIR) / "help/strony";
  std::vector<HelpPage> pages;
  for (const std::string& name : tools::namesIn(folder, ".htm"))
    pages.push_back({name, pageSource(folder / std::u8string(name.begin(), name.end()))});
  return pages;
}

}  // namespace

std::string plainText(std::string_view markup) {
  const std::string blanks = std::regex_replace(std::string(markup), std::regex("<[^>]*>"), " ");
  std::istringstream words(withEntitiesResolved(blanks));
  std::string text;
  for (std::string word; words >> word;) text.append(text.empty() ? "" : " ").append(word);
  return text;
}

std::vector<std::string> elements(std::string_view markup, std::string_view tag) {
  const std::string open = "<" + std::string(tag);
  const std::string close = "</" + std::string(tag) + ">";
  std::vector<std::string> found;
  for (auto at = markup.find(open); at != std::string_view::npos; at = markup.find(open, at + 1)) {
    const char behind = markup.substr(at + open.size(), 1).empty() ? ' ' : markup[at + open.size()];
    const auto begin = markup.find('>', at);
    const auto end = markup.find(close, at);
    if ((behind == '>' || behind == ' ') && end != std::string_view::npos)
      found.emplace_back(markup.substr(begin + 1, end - begin - 1));
  }
  return found;
}

int wordCount(std::string_view text) {
  std::istringstream words{std::string(text)};
  int count = 0;
  for (std::string word; words >> word;) {
    const bool hasLetter = std::any_of(word.begin(), word.end(), [](unsigned char letter) {
      return std::isalpha(letter) != 0 || letter >= 0x80;
    });
    const bool isDash = word == "–" || word == "—" || word == "…";
    if (hasLetter && !isDash) ++count;
  }
  return count;
}

std::vector<Section> HelpPage::sections() const {
  std::vector<Section> found;
  for (auto at = markup.find("<h2"); at != std::string::npos;) {
    const auto next = markup.find("<h2", at + 1);
    const std::string part = markup.substr(at, next == std::string::npos ? next : next - at);
    const auto end = part.find("</h2>");
    found.push_back({plainText(part.substr(0, end)), part.substr(end)});
    at = next;
  }
  return found;
}

std::vector<std::string> HelpPage::links() const {
  std::vector<std::string> found;
  for (const std::smatch& match : matches(markup, "<a [^>]*href=\"([^\"]*)\""))
    found.push_back(withoutPercents(match[1]));
  return found;
}

std::vector<std::string> HelpPage::anchors() const {
  std::vector<std::string> found;
  for (const std::smatch& match : matches(markup, "<[a-z0-9]+ [^>]*(?:id|name)=\"([^\"]*)\""))
    found.push_back(match[1]);
  return found;
}

std::vector<MarkedForm> HelpPage::forms() const {
  std::vector<MarkedForm> found;
  const char* kPattern = "<b class=\"f\" title=\"([^\"]*) ([0-9]+)\">([^<]*)</b>";
  for (const std::smatch& match : matches(markup, kPattern))
    found.push_back({match[1], std::stoi(match[2]), withEntitiesResolved(match[3])});
  return found;
}

const std::vector<HelpPage>& allPages() {
  static const std::vector<HelpPage> pages = readPages();
  return pages;
}

const HelpPage* findPage(std::string_view name) {
  const auto found = std::find_if(allPages().begin(), allPages().end(),
                                  [&](const HelpPage& page) { return page.name == name; });
  return found == allPages().end() ? nullptr : &*found;
}

const std::vector<std::string>& tensePageNames() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> pages;
    for (const app::TenseHeading& heading : app::kTenseTopics)
      if (!heading.page.empty()) pages.emplace_back(bytesOf(heading.page));
    return pages;
  }();
  return names;
}

}  // namespace odmiennik::help
