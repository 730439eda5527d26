// SPDX-License-Identifier: GPL-3.0-or-later
// A help page in pure ASCII: every viewer shows it alike, whatever encoding it believes in.
#pragma once

#include <string>
#include <string_view>

namespace odmiennik::tools {

// "<p>Czas przeszły" -> "<p>Czas przesz&#322;y". The link to the style sheet gets its type, without
// which some viewers leave the sheet unread. Throws std::runtime_error when the page is no UTF-8.
[[nodiscard]] std::string asciiPage(std::string_view utf8);

}  // namespace odmiennik::tools
