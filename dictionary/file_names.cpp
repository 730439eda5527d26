// Finding files by name.
#include "dictionary/file_names.h"

#include <algorithm>

namespace odmiennik::dictionary {
namespace {

namespace fs = std::filesystem;

char8_t lowerCased(char8_t letter) {
  return letter >= u8'A' && letter <= u8'Z' ? static_cast<char8_t>(letter + 0x20) : letter;
}

bool isSameName(std::u8string_view left, std::u8string_view right) {
  return std::ranges::equal(left, right, {}, lowerCased, lowerCased);
}

// The first in the order of the alphabet, so that the choice does not depend on the disk.
std::optional<fs::path> anySpellingOf(const fs::path& wanted) {
  const std::u8string name = wanted.filename().u8string();
  std::optional<fs::path> found;
  std::error_code fault;
  for (fs::directory_iterator entry(folderOf(wanted), fault), end; !fault && entry != end;
       entry.increment(fault)) {
    const fs::path other = entry->path().filename();
    if (isSameName(other.u8string(), name) && (!found || other < found->filename()))
      found = wanted.parent_path() / other;
  }
  return found;
}

}  // namespace

fs::path pathOf(std::string_view utf8) {
  return {std::u8string(reinterpret_cast<const char8_t*>(utf8.data()), utf8.size())};
}

bool isThere(const fs::path& file) {
  std::error_code ignored;
  return fs::exists(fs::symlink_status(file, ignored));
}

fs::path linkedFile(const fs::path& file) {
  std::error_code fault;
  if (!fs::is_symlink(file, fault)) return file;
  const fs::path real = fs::canonical(file, fault);
  return fault ? file : real;
}

fs::path folderOf(const fs::path& file) {
  const fs::path folder = file.parent_path();
  return folder.empty() ? fs::path(".") : folder;
}

std::optional<fs::path> existingFile(const std::string& prefix, std::string_view name) {
  const fs::path spelled = pathOf(prefix + std::string(name));
  return isThere(spelled) ? spelled : anySpellingOf(spelled);
}

fs::path fileFor(const std::string& prefix, std::string_view name) {
  return existingFile(prefix, name).value_or(pathOf(prefix + std::string(name)));
}

fs::path freeName(const std::string& prefix, std::string_view name) {
  std::string candidate(name);
  for (int number = 2; existingFile(prefix, candidate); ++number)
    candidate = std::string(name) + std::to_string(number);
  return pathOf(prefix + candidate);
}

}  // namespace odmiennik::dictionary
