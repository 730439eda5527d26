// The shapes in which answers are printed.
#pragma once

#include <memory>
#include <string>

#include "cli/answerer.h"

namespace odmiennik::cli {

// Appends to a text in UTF-8; knows nothing of files or terminals.
class Format {
 public:
  virtual ~Format() = default;
  // What stands before the first answer.
  virtual void begin(std::string& out) = 0;
  virtual void append(std::string& out, const Answer& answer) = 0;
};

// Appends Windows-1252 text to a table that a person or a line-wise program reads, escaped as
// dictionary/printable.h says: no form breaks a line or drives a terminal.
void appendPrintable(std::string& out, std::string_view french);

// One JSON object a line.
[[nodiscard]] std::unique_ptr<Format> makeJsonFormat();

// A header, then one slot a line; a refused verb has none.
[[nodiscard]] std::unique_ptr<Format> makeTsvFormat();

// A table that fits 80 columns; a refused verb has none.
[[nodiscard]] std::unique_ptr<Format> makeTextFormat(bool isColoured);

}  // namespace odmiennik::cli
