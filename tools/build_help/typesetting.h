// SPDX-License-Identifier: GPL-3.0-or-later
// What a writer of pages need not think of: hyphens and blanks at which no line may end.
#pragma once

#include <string>
#include <string_view>

namespace odmiennik::tools {

// A page as it is to be set, from the page as it was typed (UTF-8):
// - an ending never leaves its hyphen: "-issent", "-iss-", and ranges of numbers, get U+2011;
// - inside a table no hyphen ends a line, so that a form stays whole: "va-t-il" in a cell;
// - a word of one letter, Polish or French, never stands at the end of a line: "w domu", "à Paris".
// Tags, attributes and the page's head stay as they are. Throws std::runtime_error when the page is
// no UTF-8.
[[nodiscard]] std::string typeset(std::string_view page);

}  // namespace odmiennik::tools
