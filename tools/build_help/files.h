// SPDX-License-Identifier: GPL-3.0-or-later
// Files of the help: names are UTF-8 on every system, a file that cannot be read or written throws.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace odmiennik::tools {

// The whole file, byte for byte. Throws std::runtime_error that names the file.
[[nodiscard]] std::string readFile(const std::filesystem::path& path);

// Writes the whole file, its folder included. Throws std::runtime_error that names the file.
void writeFile(const std::filesystem::path& path, std::string_view text);

// The names of the files in a folder that end so, sorted: namesIn("help/strony", ".htm").
[[nodiscard]] std::vector<std::string> namesIn(const std::filesystem::path& folder,
                                               std::string_view extension);

}  // namespace odmiennik::tools
