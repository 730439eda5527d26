// SPDX-License-Identifier: GPL-3.0-or-later
// Writing C++ sources: literals and blocks of texts.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "engine/utf8.h"

namespace odmiennik::tools {

// A C++ string literal of exactly these bytes; letters beyond ASCII in octal, which cannot run into
// a digit that follows.
[[nodiscard]] std::string literal(std::string_view bytes);

// A text that stays UTF-8.
[[nodiscard]] inline std::string literal(Utf8View text) { return literal(bytesOf(text)); }

// A French text (Windows-1252) as a std::string_view that may hold any byte:
// std::string_view("…", n).
[[nodiscard]] std::string viewLiteral(std::string_view french);

// Texts in one block of bytes with the offset of each: no pointers, so nothing to relocate when the
// program starts.
class TextBlock {
 public:
  // Adds a text and returns its position.
  int add(std::string_view text);
  [[nodiscard]] int size() const { return static_cast<int>(offsets_.size()); }
  // Writes `extern const std::uint32_t OFFSETS[size + 1]` and `extern const char BYTES[]`.
  void write(std::ostream& out, std::string_view offsetsName, std::string_view bytesName) const;

 private:
  std::string bytes_;
  std::vector<std::uint32_t> offsets_;
};

// Writes `extern const TYPE NAME[] = {…};`.
void writeNumbers(std::ostream& out, std::string_view type, std::string_view name,
                  const std::vector<std::uint32_t>& numbers);

// An open-addressing table of positions 0…n-1 by the hash of their keys (engine/text_hash.h):
// 0 stands for an empty place, position + 1 for the others. At least half the places are empty.
[[nodiscard]] std::vector<std::uint32_t> hashTable(const std::vector<std::string>& keys);

}  // namespace odmiennik::tools
