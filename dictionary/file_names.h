// The names of files in the program's folder: found without regard to case on every system.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace odmiennik::dictionary {

// The path of a name in UTF-8, whatever the system's own encoding: pathOf("Połącz.txt").
[[nodiscard]] std::filesystem::path pathOf(std::string_view utf8);

// Whether anything stands under that name, a link to nothing included.
[[nodiscard]] bool isThere(const std::filesystem::path& file);

// The file that a link stands for; any other file, and a link to nothing, as it is.
[[nodiscard]] std::filesystem::path linkedFile(const std::filesystem::path& file);

// What stands under `prefix` + `name`, read without regard to the case of the letters a to z:
// existingFile("/home/ala/", "Czasowniki.dat") -> "/home/ala/CZASOWNIKI.DAT". The exact spelling
// goes first. Nothing when there is no such file or no such folder.
[[nodiscard]] std::optional<std::filesystem::path> existingFile(const std::string& prefix,
                                                                std::string_view name);

// The file that exists, else the path of a new one in the spelling given.
[[nodiscard]] std::filesystem::path fileFor(const std::string& prefix, std::string_view name);

// The first name that is free of `name`, `name`2, `name`3 …: freeName("", "Czasowniki.bak") ->
// "Czasowniki.bak2" beside an older copy.
[[nodiscard]] std::filesystem::path freeName(const std::string& prefix, std::string_view name);

// The folder of a file, "." for a bare name.
[[nodiscard]] std::filesystem::path folderOf(const std::filesystem::path& file);

}  // namespace odmiennik::dictionary
