// SPDX-License-Identifier: GPL-3.0-or-later
// Searching in all pages of the help.
#pragma once

#include <QString>
#include <vector>

#include "app/help/folded_text.h"
#include "app/help/help_book.h"

namespace odmiennik::app {

struct FoundPage {
  QString page;  // "/strony/default.htm"
  QString title;
  QString excerpt;  // the first hit and a few words around it
  int hits;
};

// Reads every page of the table of contents once, at the first search, and keeps its text.
class HelpFinder {
 public:
  // `book` outlives the finder.
  explicit HelpFinder(const HelpBook& book) : book_(book) {}

  // The pages on which every word of `typed` stands, or part of a longer one; those with a word in
  // their title first, then those with more hits. Nothing for a text without words.
  [[nodiscard]] std::vector<FoundPage> find(const QString& typed);

  // Another file has been opened.
  void forget() { pages_.clear(); }

 private:
  struct Page {
    QString page;
    QString title;
    QString text;
    FoldedText folded;
    QString foldedTitle;
  };
  void readPages();

  const HelpBook& book_;
  std::vector<Page> pages_;
};

}  // namespace odmiennik::app
