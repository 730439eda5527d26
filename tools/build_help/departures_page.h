// SPDX-License-Identifier: GPL-3.0-or-later
// The page of the help that tells of the forms which depart from today's norm.
#pragma once

#include <vector>

#include "tools/build_help/departure_groups.h"

namespace odmiennik::tools {

// Where a page has this, the groups are put in.
inline constexpr Utf8View kDeparturesMark = "<!-- odstępstwa -->";

// The groups as markup: heading, reason, how many verbs and forms, examples. Throws
// std::runtime_error that names a departure without a group, a group without a departure, and an
// example that is none of its group.
[[nodiscard]] Utf8Text departuresMarkup(const std::vector<DepartureGroup>& groups,
                                        const std::vector<Departure>& departures);

// The page with the markup in the place of its mark; a page without one stays.
[[nodiscard]] Utf8Text withDepartures(Utf8Text page, Utf8View markup);

}  // namespace odmiennik::tools
