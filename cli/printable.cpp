// Text without control characters.
#include "cli/format.h"
#include "engine/windows1252.h"

namespace odmiennik::cli {
namespace {

constexpr bool isControl(char letter) {
  const char32_t codePoint = engine::kCodePointOfByte[static_cast<unsigned char>(letter)];
  return codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0);
}

}  // namespace

void appendPrintable(std::string& out, std::string_view french) {
  for (std::size_t i = 0; i < french.size(); ++i) {
    if (isControl(french[i]))
      out.append("\uFFFD");
    else
      engine::appendUtf8(out, french.substr(i, 1));
  }
}

}  // namespace odmiennik::cli
