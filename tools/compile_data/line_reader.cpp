// SPDX-License-Identifier: GPL-3.0-or-later
// Taking a line of a source apart.
#include "tools/compile_data/line_reader.h"

#include <charconv>
#include <utility>

namespace odmiennik::tools {
namespace {

constexpr std::string_view kBlanks = " \t";

std::string quoted(std::string_view text) { return "\"" + std::string(text) + "\""; }

}  // namespace

bool LineReader::take(std::string_view words) {
  if (!rest_.starts_with(words)) return false;
  const std::string_view behind = rest_.substr(words.size());
  if (!behind.empty() && kBlanks.find(behind.front()) == std::string_view::npos) return false;
  rest_ = trim(behind);
  return true;
}

std::string_view LineReader::takeWord(std::string_view expected) {
  if (isAtEnd()) fail(expected);
  const std::string_view word = rest_.substr(0, rest_.find_first_of(kBlanks));
  rest_ = trim(rest_.substr(word.size()));
  return word;
}

std::string LineReader::takeIdentifier() {
  std::string name(takeWord("a name is expected"));
  const bool isPlain = name.find_first_not_of(
                           "abcdefghijklmnopqrstuvwxyz"
                           "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789") == std::string::npos;
  if (!isPlain || (name[0] >= '0' && name[0] <= '9'))
    fail("\"" + name + "\" is no name for the code");
  return name;
}

int LineReader::takeNumber(int least, int most) {
  const std::string_view word = takeWord("a number is expected");
  int value = 0;
  const auto [end, fault] = std::from_chars(word.data(), word.data() + word.size(), value);
  if (fault != std::errc{} || end != word.data() + word.size())
    fail(quoted(word) + " is no whole number");
  if (value < least || value > most)
    fail(quoted(word) + " is not between " + std::to_string(least) + " and " +
         std::to_string(most));
  return value;
}

LineReader LineReader::takePart(char separator) {
  LineReader part = *this;
  const auto at = rest_.find(separator);
  part.rest_ = trim(rest_.substr(0, at));
  rest_ = at == std::string_view::npos ? std::string_view{} : trim(rest_.substr(at + 1));
  if (at != std::string_view::npos && isAtEnd())
    fail("something is expected behind \"" + std::string(1, separator) + "\"");
  return part;
}

std::string_view LineReader::takeQuoted() {
  if (!rest_.starts_with('"')) fail("a quoted text is expected");
  const auto close = rest_.find('"', 1);
  if (close == std::string_view::npos) fail("a quote is not closed");
  const std::string_view text = rest_.substr(1, close - 1);
  rest_ = trim(rest_.substr(close + 1));
  return text;
}

std::string_view LineReader::takeRest(std::string_view expected) {
  if (isAtEnd()) fail(expected);
  return std::exchange(rest_, {});
}

void LineReader::finish() const {
  if (!isAtEnd()) fail(quoted(rest_) + " is left over");
}

void Once::note(const LineReader& reader, std::string_view what) {
  if (!noted_.emplace(what).second) reader.fail(quoted(what) + " stands twice");
}

}  // namespace odmiennik::tools
