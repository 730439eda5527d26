// What the settings file tells before the start has come to the reading of it.
#pragma once

#include <cstdint>
#include <string>

#include "dictionary/file_system.h"

namespace odmiennik::app {

// How many verbs of the user's own the settings file in the program folder tells of; 0 without it.
[[nodiscard]] std::int32_t storedUserVerbCount(
    const std::string& prefix, dictionary::FileSystem& files = dictionary::systemFiles());

}  // namespace odmiennik::app
