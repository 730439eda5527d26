// SPDX-License-Identifier: GPL-3.0-or-later
// Writing of C++ sources.
#include "tools/compile_data/emit.h"

#include "engine/text_hash.h"

namespace odmiennik::tools {
namespace {

std::string octal(unsigned char byte) {
  std::string text = "\\";
  for (const int shift : {6, 3, 0}) text.push_back(static_cast<char>('0' + ((byte >> shift) & 7)));
  return text;
}

}  // namespace

std::string literal(std::string_view bytes) {
  std::string text = "\"";
  for (const char letter : bytes) {
    const auto byte = static_cast<unsigned char>(letter);
    const bool isPlain = byte >= 0x20 && byte < 0x7F && letter != '"' && letter != '\\' &&
                         letter != '?';  // two question marks could begin a trigraph
    isPlain ? text.push_back(letter) : void(text += octal(byte));
  }
  return text + "\"";
}

std::string viewLiteral(std::string_view french) {
  return "std::string_view(" + literal(french) + ", " + std::to_string(french.size()) + ")";
}

int TextBlock::add(std::string_view text) {
  offsets_.push_back(static_cast<std::uint32_t>(bytes_.size()));
  bytes_.append(text);
  return size() - 1;
}

void TextBlock::write(std::ostream& out, std::string_view offsetsName,
                      std::string_view bytesName) const {
  std::vector<std::uint32_t> ends = offsets_;
  ends.push_back(static_cast<std::uint32_t>(bytes_.size()));
  writeNumbers(out, "std::uint32_t", offsetsName, ends);
  out << "const char " << bytesName << "[] =\n";
  constexpr std::size_t kBytesPerLine = 80;
  for (std::size_t at = 0; at < bytes_.size(); at += kBytesPerLine)
    out << "    " << literal(std::string_view(bytes_).substr(at, kBytesPerLine)) << "\n";
  out << "    \"\";\n";
}

void writeNumbers(std::ostream& out, std::string_view type, std::string_view name,
                  const std::vector<std::uint32_t>& numbers) {
  out << "const " << type << " " << name << "[] = {";
  for (std::size_t i = 0; i < numbers.size(); ++i)
    out << (i % 20 == 0 ? "\n    " : " ") << numbers[i] << ",";
  out << "\n};\n";
}

std::vector<std::uint32_t> hashTable(const std::vector<std::string>& keys) {
  std::size_t places = 4;
  while (places < 2 * keys.size()) places *= 2;
  std::vector<std::uint32_t> table(places, 0);
  for (std::size_t position = 0; position < keys.size(); ++position) {
    std::size_t place = engine::textHash(keys[position]) & (places - 1);
    while (table[place] != 0) place = (place + 1) & (places - 1);
    table[place] = static_cast<std::uint32_t>(position + 1);
  }
  return table;
}

}  // namespace odmiennik::tools
