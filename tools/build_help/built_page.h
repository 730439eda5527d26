// SPDX-License-Identifier: GPL-3.0-or-later
// A help page as the build puts it into the help file.
#pragma once

#include <string>
#include <string_view>

namespace odmiennik::tools {

// A page without what only its makers read, and with what viewers need: "<b class="f"
// title="parler 0">" becomes "<b>", or the viewer would show the mark as a tip; cells stand side by
// side with no gap, which the style sheet cannot ask for ("<table cellspacing="0"").
[[nodiscard]] std::string forViewers(const std::string& page);

// The whole way of a page (UTF-8) into the help file: set, for viewers, in ASCII. Throws
// std::runtime_error when the page is no UTF-8.
[[nodiscard]] std::string builtPage(std::string_view page);

}  // namespace odmiennik::tools
