// SPDX-License-Identifier: GPL-3.0-or-later
// Where the system's information tool is found on Windows.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace odmiennik::app {

// Reads the local-machine part of the registry.
class Registry {
 public:
  virtual ~Registry() = default;
  // A text value without its terminating NUL; nothing when it could not be read.
  [[nodiscard]] virtual std::optional<std::string> localMachineText(std::string_view key,
                                                                    std::string_view value) = 0;
};

using FileExists = std::function<bool(const std::string& path)>;

// The tool's path, or nothing. The registered path wins and is taken as it is; the folder of the
// shared tools counts only if the tool is in it.
[[nodiscard]] std::optional<std::string> systemInformationTool(Registry& registry,
                                                               const FileExists& fileExists);

// What was read into a buffer: the text without one terminating NUL.
[[nodiscard]] std::string_view withoutTerminatingNul(std::string_view read);

}  // namespace odmiennik::app
