// SPDX-License-Identifier: GPL-3.0-or-later
// Text as a search sees it: without accents, case and kinds of apostrophes, hyphens and blanks.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace odmiennik::app {

struct FoldedText {
  QString text;
  std::vector<int> places;  // of each letter of `text` in the text it was made of, and its end

  bool operator==(const FoldedText&) const = default;
};

// "Où l’être" -> "ou l'etre"; œ becomes oe, ł becomes l, and every hyphen, dash and blank the one
// on the keyboard.
[[nodiscard]] FoldedText folded(const QString& text);

// A place of the text in which something was found.
struct TextHit {
  int place;
  int length;

  bool operator==(const TextHit&) const = default;
};

// Where any of the words stands in the text, in the order of the text; hits do not overlap.
[[nodiscard]] std::vector<TextHit> hitsOf(const FoldedText& text, const QStringList& words);

// What was typed, as one phrase and as words; both are folded. Blanks around it are dropped.
[[nodiscard]] QString searchedPhrase(const QString& typed);
[[nodiscard]] QStringList searchedWords(const QString& typed);

}  // namespace odmiennik::app
