// SPDX-License-Identifier: GPL-3.0-or-later
// French text without control characters.
#include "dictionary/printable.h"

#include <algorithm>
#include <array>

#include "engine/windows1252.h"
#include "formats/printable.h"

namespace odmiennik::formats {
namespace {

// By bytes of Windows-1252, so that no letter of a form is searched for.
constexpr std::array<bool, 256> kActs = [] {
  std::array<bool, 256> acts{};
  for (std::size_t byte = 0; byte < acts.size(); ++byte)
    acts[byte] = dictionary::actsOnTerminal(engine::kCodePointOfByte[byte]);
  return acts;
}();

bool acts(char letter) { return kActs[static_cast<unsigned char>(letter)]; }

}  // namespace

void appendPrintable(Utf8Text& out, std::string_view french) {
  if (std::ranges::none_of(french, acts))
    engine::appendUtf8(out, french);
  else
    dictionary::appendPrintable(out, engine::toUtf8(french));
}

}  // namespace odmiennik::formats
