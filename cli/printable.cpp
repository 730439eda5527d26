// French text without control characters.
#include "dictionary/printable.h"

#include <algorithm>

#include "cli/format.h"
#include "engine/windows1252.h"

namespace odmiennik::cli {
namespace {

bool acts(char letter) {
  return dictionary::actsOnTerminal(engine::kCodePointOfByte[static_cast<unsigned char>(letter)]);
}

}  // namespace

void appendPrintable(std::string& out, std::string_view french) {
  if (std::ranges::none_of(french, acts))
    engine::appendUtf8(out, french);
  else
    dictionary::appendPrintable(out, engine::toUtf8(french));
}

}  // namespace odmiennik::cli
