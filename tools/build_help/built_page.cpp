// SPDX-License-Identifier: GPL-3.0-or-later
// Pages as viewers get them.
#include "tools/build_help/built_page.h"

#include <regex>

#include "tools/build_help/ascii_page.h"
#include "tools/build_help/typesetting.h"

namespace odmiennik::tools {

std::string forViewers(const std::string& page) {
  static const std::regex form("<b class=\"f\"[^>]*>"), table("<table ");
  return std::regex_replace(std::regex_replace(page, form, "<b>"), table,
                            "<table cellspacing=\"0\" ");
}

std::string builtPage(std::string_view page) { return asciiPage(forViewers(typeset(page))); }

}  // namespace odmiennik::tools
