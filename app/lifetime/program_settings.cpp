// The user-verb count of the settings file.
#include "app/lifetime/program_settings.h"

#include "dictionary/settings.h"

namespace odmiennik::app {

std::int32_t storedUserVerbCount(const std::string& prefix, dictionary::FileSystem& files) {
  dictionary::Settings settings;
  // A damaged file fills what stands before the damage, and the count stands first.
  static_cast<void>(dictionary::readSettingsFile(prefix, settings, files));
  return settings.userVerbCount;
}

}  // namespace odmiennik::app
