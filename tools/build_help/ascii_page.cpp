// SPDX-License-Identifier: GPL-3.0-or-later
// Pages to ASCII.
#include "tools/build_help/ascii_page.h"

#include <stdexcept>

#include "engine/windows1252.h"

namespace odmiennik::tools {
namespace {

constexpr std::string_view kLink = "<link rel=\"stylesheet\" href=";
constexpr std::string_view kTypedLink = "<link rel=\"stylesheet\" type=\"text/css\" href=";

std::string withTypedLink(std::string page) {
  const auto place = page.find(kLink);
  if (place != std::string::npos) page.replace(place, kLink.size(), kTypedLink);
  return page;
}

}  // namespace

std::string asciiPage(std::string_view utf8) {
  std::string page;
  while (!utf8.empty()) {
    const engine::DecodedCodePoint letter = engine::decodeUtf8(asUtf8(utf8));
    if (letter.length == 0) throw std::runtime_error("the page is not UTF-8");
    if (letter.value < 0x80) {
      page += static_cast<char>(letter.value);
    } else {
      page += "&#" + std::to_string(static_cast<unsigned>(letter.value)) + ";";
    }
    utf8.remove_prefix(static_cast<std::size_t>(letter.length));
  }
  return withTypedLink(std::move(page));
}

}  // namespace odmiennik::tools
