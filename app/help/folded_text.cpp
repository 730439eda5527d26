// SPDX-License-Identifier: GPL-3.0-or-later
// Folding of letters.
#include "app/help/folded_text.h"

#include <algorithm>
#include <array>

namespace odmiennik::app {
namespace {

struct Folding {
  char16_t letter;
  const char16_t* folded;
};

// What decomposition does not give. A soft hyphen and a word joiner are not seen at all.
constexpr Folding kFoldings[] = {
    {u'œ', u"oe"},     {u'æ', u"ae"},     {u'ł', u"l"},      {u'ø', u"o"},      {u'ß', u"ss"},
    {u'’', u"'"},      {u'‘', u"'"},      {u'ʼ', u"'"},      {u'′', u"'"},      {u'„', u"\""},
    {u'”', u"\""},     {u'“', u"\""},     {u'«', u"\""},     {u'»', u"\""},     {u'–', u"-"},
    {u'—', u"-"},      {u'\u2010', u"-"}, {u'\u2011', u"-"}, {u'\u2212', u"-"}, {u'…', u"..."},
    {u'\u00AD', u""},  {u'\u2060', u""},  {u'\uFDD0', u" "}, {u'\uFDD1', u" "}, {u'\u2028', u" "},
    {u'\u2029', u" "},
};

QString foldedLetter(QChar letter) {
  if (letter.isSpace()) return QStringLiteral(" ");
  const QChar small = letter.toLower();
  for (const Folding& folding : kFoldings)
    if (folding.letter == small.unicode()) return QString::fromUtf16(folding.folded);
  if (small.isMark()) return {};
  const QString parts = small.decomposition();
  return parts.isEmpty() ? QString(small) : foldedLetter(parts.front());
}

// Most letters of a page fold to themselves or to one other.
class LetterTable {
 public:
  LetterTable() {
    for (std::size_t letter = 0; letter < table_.size(); ++letter)
      table_[letter] = foldedLetter(QChar(static_cast<char16_t>(letter)));
  }
  [[nodiscard]] QString of(QChar letter) const {
    return letter.unicode() < table_.size() ? table_[letter.unicode()] : foldedLetter(letter);
  }

 private:
  std::array<QString, 0x180> table_;  // Latin
};

}  // namespace

FoldedText folded(const QString& text) {
  static const LetterTable letters;
  FoldedText result;
  result.text.reserve(text.size());
  result.places.reserve(static_cast<std::size_t>(text.size()) + 1);
  for (int place = 0; place < text.size(); ++place) {
    const QString letter = letters.of(text[place]);
    result.text += letter;
    result.places.insert(result.places.end(), static_cast<std::size_t>(letter.size()), place);
  }
  result.places.push_back(static_cast<int>(text.size()));
  return result;
}

std::vector<TextHit> hitsOf(const FoldedText& text, const QStringList& words) {
  std::vector<TextHit> hits;
  const auto placeOf = [&text](qsizetype at) { return text.places[static_cast<std::size_t>(at)]; };
  for (const QString& word : words)
    for (qsizetype at = text.text.indexOf(word); at >= 0 && !word.isEmpty();
         at = text.text.indexOf(word, at + word.size()))
      hits.push_back({placeOf(at), placeOf(at + word.size() - 1) + 1 - placeOf(at)});
  std::sort(hits.begin(), hits.end(), [](const TextHit& first, const TextHit& second) {
    return first.place != second.place ? first.place < second.place : first.length > second.length;
  });
  const auto overlaps = [](const TextHit& first, const TextHit& second) {
    return second.place < first.place + first.length;
  };
  hits.erase(std::unique(hits.begin(), hits.end(), overlaps), hits.end());
  return hits;
}

QString searchedPhrase(const QString& typed) { return folded(typed.trimmed()).text; }

QStringList searchedWords(const QString& typed) {
  return folded(typed).text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

}  // namespace odmiennik::app
