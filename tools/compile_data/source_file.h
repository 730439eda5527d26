// SPDX-License-Identifier: GPL-3.0-or-later
// Reading the text sources in data/: lines with their numbers, and errors that name the place.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace odmiennik::tools {

// A fault in a source; what() is "file:line: reason", the form that editors jump to.
class SourceError : public std::runtime_error {
 public:
  SourceError(std::string_view file, int line, std::string_view reason);
};

struct SourceLine {
  std::string text;  // UTF-8, without line end and without surrounding blanks
  int number = 0;    // from 1
};

struct SourceFile {
  std::string name;
  std::vector<SourceLine> lines;  // neither comments ("#" first) nor empty lines

  [[noreturn]] void fail(const SourceLine& line, std::string_view reason) const;
};

// Reads a whole source; throws when it can't be read, is no UTF-8, or holds nothing.
[[nodiscard]] SourceFile readSource(const std::string& path);

// "a | b" -> {"a", "b"}, each without surrounding blanks.
[[nodiscard]] std::vector<std::string> split(std::string_view text, char separator);

[[nodiscard]] std::string_view trim(std::string_view text);

// The text in Windows-1252; a letter outside it is a fault of the line.
[[nodiscard]] std::string french(const SourceFile& file, const SourceLine& line,
                                 std::string_view utf8);

}  // namespace odmiennik::tools
