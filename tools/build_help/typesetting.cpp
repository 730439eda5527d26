// SPDX-License-Identifier: GPL-3.0-or-later
// Setting of pages, letter by letter of what a reader sees.
#include "tools/build_help/typesetting.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <vector>

#include "engine/windows1252.h"

namespace odmiennik::tools {
namespace {

constexpr std::string_view kHeadEnd = "</head>";
constexpr std::string_view kFixedHyphen = "\u2011";
constexpr std::string_view kFixedBlank = "&nbsp;";
constexpr char32_t kFixedBlankLetter = 0xA0;

// A tag, an entity or a letter of the page.
struct Piece {
  std::string_view text;
  char32_t letter = 0;  // 0 for a tag
  bool isInTable = false;
};

bool isTag(std::string_view tag, std::string_view name) {
  return tag.starts_with(name) && tag.substr(name.size(), 1).find_first_of("> \n") == 0;
}

// Takes a tag, an entity or a letter off the page.
std::string_view take(std::string_view& page, std::size_t length) {
  const std::string_view text = page.substr(0, length);
  page.remove_prefix(text.size());
  return text;
}

Piece takePiece(std::string_view& page) {
  constexpr std::size_t kLongestEntity = 10;
  if (page.front() == '<') return {take(page, page.find('>') + 1)};
  if (const auto end = page.find(';'); page.front() == '&' && end < kLongestEntity) {
    const std::string_view entity = take(page, end + 1);
    return {entity, entity == kFixedBlank ? kFixedBlankLetter : U'&'};
  }
  const engine::DecodedCodePoint letter = engine::decodeUtf8(asUtf8(page));
  if (letter.length == 0) throw std::runtime_error("the page is not UTF-8");
  return {take(page, static_cast<std::size_t>(letter.length)), letter.value};
}

std::vector<Piece> piecesOf(std::string_view page) {
  std::vector<Piece> pieces;
  int tables = 0;
  while (!page.empty()) {
    if (page.front() == '<' && page.find('>') == std::string_view::npos)
      throw std::runtime_error("a tag has no end");
    Piece piece = takePiece(page);
    if (isTag(piece.text, "<table")) ++tables;
    if (isTag(piece.text, "</table")) --tables;
    piece.isInTable = tables > 0;
    pieces.push_back(piece);
  }
  return pieces;
}

// A tag between words that a reader sees as a boundary; marks inside a line are none.
bool isBoundary(const Piece& piece) {
  constexpr std::array kMarks{"<b", "</b", "<i", "</i", "<a", "</a", "<span", "</span"};
  return piece.letter == 0 && std::none_of(kMarks.begin(), kMarks.end(), [&](const char* mark) {
           return isTag(piece.text, mark);
         });
}

bool isDigit(char32_t letter) { return letter >= U'0' && letter <= U'9'; }

bool isLetter(char32_t letter) {
  constexpr char32_t kTimes = 0xD7, kDivided = 0xF7, kLastOfLatin = 0x17F;
  const char32_t small = letter | 0x20;
  if (letter < 0x80) return small >= U'a' && small <= U'z';
  return letter >= 0xC0 && letter <= kLastOfLatin && letter != kTimes && letter != kDivided;
}

bool isBlank(char32_t letter) { return letter == U' ' || letter == U'\n' || letter == U'\r'; }

// The words of one letter: a, i, o, u, w, z in Polish; à, a, y, ô in French.
bool isWordOfOneLetter(char32_t letter) {
  constexpr std::u32string_view kWords = U"aiouwzyAIOUWZYàÀôÔ";
  return kWords.find(letter) != std::u32string_view::npos;
}

class Typesetter {
 public:
  explicit Typesetter(std::string_view page) : pieces_(piecesOf(page)) {}

  [[nodiscard]] std::string set() const {
    std::string page;
    for (std::size_t at = 0; at < pieces_.size(); ++at) page += setPiece(at);
    return page;
  }

 private:
  [[nodiscard]] std::string_view setPiece(std::size_t at) const {
    const Piece& piece = pieces_[at];
    if (piece.letter == U'-' && isFixedHyphen(at)) return kFixedHyphen;
    if (isBlank(piece.letter) && isFixedBlank(at)) return kFixedBlank;
    return piece.text;
  }

  // The letter that a reader sees before or behind a place, past marks; 0 at the ends of a text.
  [[nodiscard]] char32_t seen(std::size_t at, int step) const {
    for (at += static_cast<std::size_t>(step); at < pieces_.size();
         at += static_cast<std::size_t>(step)) {
      if (pieces_[at].letter != 0) return pieces_[at].letter;
      if (isBoundary(pieces_[at])) return 0;
    }
    return 0;
  }

  [[nodiscard]] bool isFixedHyphen(std::size_t at) const {
    const char32_t before = seen(at, -1), behind = seen(at, 1);
    if (isDigit(before) && isDigit(behind)) return true;
    if (isLetter(before) && isLetter(behind)) return pieces_[at].isInTable;
    return isLetter(before) || isLetter(behind);
  }

  // Behind a word of one letter. Of several blanks that show as one only the first is asked.
  [[nodiscard]] bool isFixedBlank(std::size_t at) const {
    if (at == 0 || !isWordOfOneLetter(seen(at, -1)) || isBlank(seen(at, 1))) return false;
    std::size_t word = at - 1;
    while (pieces_[word].letter == 0) --word;
    const char32_t before = seen(word, -1);
    const bool isWhole = !isLetter(before) && !isDigit(before) && !isJoined(before);
    return isWhole && seen(at, 1) != 0;
  }

  // What ties a letter to what stands before it: "j'y", "-t-a".
  [[nodiscard]] static bool isJoined(char32_t before) {
    return before == U'\'' || before == 0x2019 || before == U'-' || before == 0x2011;
  }

  std::vector<Piece> pieces_;
};

}  // namespace

std::string typeset(std::string_view page) {
  const auto head = page.find(kHeadEnd);
  const std::size_t body = head == std::string_view::npos ? 0 : head + kHeadEnd.size();
  return std::string(page.substr(0, body)) + Typesetter(page.substr(body)).set();
}

}  // namespace odmiennik::tools
