// The settings file as the window uses it.
#pragma once

#include <cstdint>
#include <string>

namespace odmiennik::app {

// How many verbs of the user's own the settings file in the program folder tells of; 0 without it.
[[nodiscard]] std::int32_t storedUserVerbCount(const std::string& prefix);

// Writes the settings of a first start over the file; false when that failed.
bool writeDefaultSettings(const std::string& prefix);

}  // namespace odmiennik::app
