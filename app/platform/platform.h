// What differs between systems, and nothing else: one source for Windows, one for other desktops.
#pragma once

#include <string>

namespace odmiennik::app::platform {

// The program that shows all letters of a font, ready to be started; empty when there is none.
[[nodiscard]] std::string characterMap();

// Starts a program and returns at once; false when it could not be started.
bool start(const std::string& program);

}  // namespace odmiennik::app::platform
