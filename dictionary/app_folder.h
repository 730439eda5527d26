// The prefix of every file name in the program's folder.
#pragma once

#include <string>
#include <string_view>

namespace odmiennik::dictionary {

// The folder without trailing blanks and with a separator of the system's own behind it:
// AppFolder("/home/ala ") -> "/home/ala/".
// deliberate: a folder that already ends in "/" or "\" gives the empty text, so that a program in a
// drive's root names its files relative to the current folder.
[[nodiscard]] std::string AppFolder(std::string_view folder);

}  // namespace odmiennik::dictionary
