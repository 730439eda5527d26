// SPDX-License-Identifier: GPL-3.0-or-later
// Taking a line of a source apart.
#include "tools/compile_data/line_reader.h"

#include <charconv>
#include <utility>

namespace odmiennik::tools {
namespace {

constexpr Utf8View kBlanks = " \t";

}  // namespace

bool LineReader::take(Utf8View words) {
  if (!rest_.starts_with(words)) return false;
  const Utf8View behind = rest_.substr(words.size());
  if (!behind.empty() && kBlanks.find(behind.front()) == Utf8View::npos) return false;
  rest_ = trim(behind);
  return true;
}

Utf8View LineReader::takeWord(Utf8View expected) {
  if (isAtEnd()) fail(expected);
  const Utf8View word = rest_.substr(0, rest_.find_first_of(kBlanks));
  rest_ = trim(rest_.substr(word.size()));
  return word;
}

std::string LineReader::takeIdentifier() {
  std::string name(bytesOf(takeWord("a name is expected")));
  const bool isPlain = name.find_first_not_of(
                           "abcdefghijklmnopqrstuvwxyz"
                           "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789") == std::string::npos;
  if (!isPlain || (name[0] >= '0' && name[0] <= '9'))
    fail(inQuotes(asUtf8(name)) + " is no name for the code");
  return name;
}

int LineReader::takeNumber(int least, int most) {
  const Utf8View word = takeWord("a number is expected");
  int value = 0;
  const auto [end, fault] = std::from_chars(word.data(), word.data() + word.size(), value);
  if (fault != std::errc{} || end != word.data() + word.size())
    fail(inQuotes(word) + " is no whole number");
  if (value < least || value > most)
    fail(inQuotes(word) + " is not between " + decimal(least) + " and " + decimal(most));
  return value;
}

LineReader LineReader::takePart(char separator) {
  LineReader part = *this;
  const auto at = rest_.find(separator);
  part.rest_ = trim(rest_.substr(0, at));
  rest_ = at == Utf8View::npos ? Utf8View{} : trim(rest_.substr(at + 1));
  if (at != Utf8View::npos && isAtEnd())
    fail("something is expected behind " + inQuotes({&separator, 1}));
  return part;
}

Utf8View LineReader::takeQuoted() {
  if (!rest_.starts_with('"')) fail("a quoted text is expected");
  const auto close = rest_.find('"', 1);
  if (close == Utf8View::npos) fail("a quote is not closed");
  const Utf8View text = rest_.substr(1, close - 1);
  rest_ = trim(rest_.substr(close + 1));
  return text;
}

Utf8View LineReader::takeRest(Utf8View expected) {
  if (isAtEnd()) fail(expected);
  return std::exchange(rest_, {});
}

void LineReader::finish() const {
  if (!isAtEnd()) fail(inQuotes(rest_) + " is left over");
}

void Once::note(const LineReader& reader, Utf8View what) {
  if (!noted_.emplace(what).second) reader.fail(inQuotes(what) + " stands twice");
}

}  // namespace odmiennik::tools
