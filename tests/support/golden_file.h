// SPDX-License-Identifier: GPL-3.0-or-later
// Golden files: expected output kept beside the tests, compared by them and reviewed like code.
#pragma once

#include <string>
#include <string_view>

namespace odmiennik::testing {

// Whether this run rewrites the golden files: ODMIENNIK_UPDATE_GOLDEN=1 is set.
[[nodiscard]] bool isUpdatingGolden();

// The content of tests/golden/`name`; throws when it cannot be read.
[[nodiscard]] std::string readGolden(std::string_view name);

// Replaces tests/golden/`name`; throws when it cannot be written.
void writeGolden(std::string_view name, std::string_view content);

// Compares `actual` with the golden file and fails for every differing line, with the verb that the
// line belongs to ("verb …" opens a block). While updating it rewrites the file instead.
void expectGolden(std::string_view name, std::string_view actual);

}  // namespace odmiennik::testing
