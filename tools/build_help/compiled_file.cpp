// SPDX-License-Identifier: GPL-3.0-or-later
// Contexts and times of a compiled help file.
#include "tools/build_help/compiled_file.h"

#include <cstdint>
#include <stdexcept>

namespace odmiennik::tools {
namespace {

// Least significant byte first, as everywhere in the file.
std::string number(std::size_t value) {
  std::string bytes;
  for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(value >> shift & 0xFF);
  return bytes;
}

std::string record(std::size_t placeOfPage) {
  constexpr std::size_t kContext = 2;
  const std::string entry = number(kContext) + number(placeOfPage);
  return number(entry.size()) + entry;
}

constexpr std::string_view kHead("ITSF\x03\0\0\0", 8);
constexpr std::size_t kTimeInHead = 16;
// The record's version, then the number and the length of its first entry, the time.
constexpr std::string_view kSystemBeforeTime("\x03\0\0\0\x0A\0\x04\0", 8);
constexpr std::string_view kSystemBehindTime("\x09\0\x16\0HHA Version ", 16);
constexpr std::size_t kTimeSize = 4;

std::size_t timeOfSystemRecord(std::string_view file) {
  const std::size_t behind = file.find(kSystemBehindTime);
  if (behind == file.npos || file.find(kSystemBehindTime, behind + 1) != file.npos)
    throw std::runtime_error("the help file has not one record of its compiler");
  if (behind < kTimeSize + kSystemBeforeTime.size() ||
      !file.substr(0, behind - kTimeSize).ends_with(kSystemBeforeTime))
    throw std::runtime_error("the compiler's record of the help file does not begin with its time");
  return behind - kTimeSize;
}

}  // namespace

std::string contextRecord(std::string_view strings) {
  // Texts end in a zero byte, and the first is empty.
  const std::string text = '\0' + std::string(kContextPage) + '\0';
  const std::size_t place = strings.find(text);
  if (place == strings.npos)
    throw std::runtime_error("the strings of the help file do not have " +
                             std::string(kContextPage));
  return record(place + 1);
}

std::string emptyContextRecord() { return record(0); }

std::string withoutTimes(std::string file) {
  if (!file.starts_with(kHead) || file.size() < kTimeInHead + kTimeSize)
    throw std::runtime_error("not a compiled help file");
  file.replace(kTimeInHead, kTimeSize, kTimeSize, '\0');
  file.replace(timeOfSystemRecord(file), kTimeSize, kTimeSize, '\0');
  return file;
}

}  // namespace odmiennik::tools
