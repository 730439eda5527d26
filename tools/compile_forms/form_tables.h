// SPDX-License-Identifier: GPL-3.0-or-later
// Paradigms written as constant tables.
#pragma once

#include <cstdint>
#include <ostream>
#include <vector>

#include "tools/compile_forms/paradigms.h"

namespace odmiennik::tools {

// Writes the tables of finder/form_index_data.h; `ranks` has a number for each verb.
void writeFormTables(std::ostream& out, const SourceForms& source,
                     const std::vector<std::uint32_t>& ranks);

}  // namespace odmiennik::tools
