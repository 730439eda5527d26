// SPDX-License-Identifier: GPL-3.0-or-later
// A page of the help taken apart: its headings, text, links and marked French forms.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace odmiennik::help {

// <b class="f" title="parler 0">parle</b>: what the engine has to give for slot 0 of "parler".
struct MarkedForm {
  std::string verb;
  int slot = -1;
  std::string form;
};

// What stands under one h2.
struct Section {
  std::string heading;
  std::string markup;
};

struct HelpPage {
  std::string name;    // "PasseSimple.htm"
  std::string markup;  // UTF-8

  [[nodiscard]] std::vector<Section> sections() const;
  [[nodiscard]] std::vector<std::string> links() const;    // every href, percent signs resolved
  [[nodiscard]] std::vector<std::string> anchors() const;  // every id and name
  [[nodiscard]] std::vector<MarkedForm> forms() const;
};

// All pages of the help, by name; all page names of the table of tenses.
[[nodiscard]] const std::vector<HelpPage>& allPages();
[[nodiscard]] const HelpPage* findPage(std::string_view name);
[[nodiscard]] const std::vector<std::string>& tensePageNames();

// "<p>a <b>b</b> &amp; c" -> "a b & c": tags away, entities resolved, runs of blanks made one.
[[nodiscard]] std::string plainText(std::string_view markup);

// What stands between each pair of tags; the tags themselves may have attributes.
[[nodiscard]] std::vector<std::string> elements(std::string_view markup, std::string_view tag);

// The number of words: runs of characters between blanks that hold a letter.
[[nodiscard]] int wordCount(std::string_view text);

}  // namespace odmiennik::help
