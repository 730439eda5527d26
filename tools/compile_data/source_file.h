// SPDX-License-Identifier: GPL-3.0-or-later
// Reading the text sources in data/: lines with their numbers, and errors that name the place.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "engine/utf8.h"

namespace odmiennik::tools {

// A fault in a source; what() is "file:line: reason", the form that editors jump to.
class SourceError : public std::runtime_error {
 public:
  SourceError(std::string_view file, int line, Utf8View reason);
};

// A fault of a source that has no line.
[[nodiscard]] std::runtime_error fault(Utf8View reason);

struct SourceLine {
  Utf8Text text;   // without line end and without surrounding blanks
  int number = 0;  // from 1
};

struct SourceFile {
  std::string name;
  std::vector<SourceLine> lines;  // neither comments ("#" first) nor empty lines

  [[noreturn]] void fail(const SourceLine& line, Utf8View reason) const;
};

// Reads a whole source; throws when it can't be read, is no UTF-8, or holds nothing.
[[nodiscard]] SourceFile readSource(const std::string& path);

// "a | b" -> {"a", "b"}, each without surrounding blanks.
[[nodiscard]] std::vector<Utf8Text> split(Utf8View text, char separator);

[[nodiscard]] Utf8View trim(Utf8View text);

// A piece of a source as a fault names it: inQuotes("cut x") -> "\"cut x\"".
[[nodiscard]] Utf8Text inQuotes(Utf8View text);

// The text in Windows-1252; a letter outside it is a fault of the line.
[[nodiscard]] std::string french(const SourceFile& file, const SourceLine& line, Utf8View utf8);

}  // namespace odmiennik::tools
