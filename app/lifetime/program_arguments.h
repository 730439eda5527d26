// SPDX-License-Identifier: GPL-3.0-or-later
// The command line, as far as it touches the disk.
#pragma once

#include <optional>

#include "engine/utf8.h"

namespace odmiennik::app {

// The folder that keeps the user's verbs and settings: the one named with --folder, else the
// program's own, which is created for a user who has none yet.
[[nodiscard]] Utf8Text programFolderOf(const std::optional<Utf8Text>& named);

}  // namespace odmiennik::app
