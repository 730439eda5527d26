// SPDX-License-Identifier: GPL-3.0-or-later
// The list of frequent verbs.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace odmiennik::tools {

// The rank of every verb of the index, the first verb of the list at `path` being 0; one that is
// not listed has the highest number. A verb that is unknown or stands twice is a fault of its line.
[[nodiscard]] std::vector<std::uint32_t> ranksOfVerbs(const std::string& path);

}  // namespace odmiennik::tools
