// The program folder's file-name prefix.
#include "dictionary/app_folder.h"

#include <filesystem>

#include "engine/normalization.h"

namespace odmiennik::dictionary {

std::string AppFolder(std::string_view folder) {
  const std::string_view bare = engine::trimmed(folder);
  if (bare.ends_with('/') || bare.ends_with('\\')) return {};
  // Leading blanks belong to the name; only the trailing ones go.
  const std::string_view kept = folder.substr(0, folder.find_last_not_of(' ') + 1);
  return std::string(kept) + static_cast<char>(std::filesystem::path::preferred_separator);
}

}  // namespace odmiennik::dictionary
