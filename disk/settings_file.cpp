// SPDX-License-Identifier: GPL-3.0-or-later
// Reading and replacing the settings file.
#include <optional>

#include "disk/names.h"
#include "disk/replacement.h"
#include "disk/settings.h"

namespace odmiennik::disk {
namespace {

constexpr Utf8View kSettingsFile = "Werbolin.cfg";
// Far more than five numbers take; a longer file is not read to its end.
constexpr std::size_t kLongestText = 4096;

// The file's text; of one that is too long, its first whole lines.
std::optional<std::string> readText(InputFile& file) {
  std::string text(kLongestText, '\0');
  std::size_t length = 0;
  std::ptrdiff_t got = 1;
  while (length < text.size() && got > 0) {
    got = file.read(text.data() + length, text.size() - length);
    if (got < 0) return std::nullopt;
    length += static_cast<std::size_t>(got);
  }
  if (length == text.size()) length = text.find_last_of("\r\n") + 1;
  text.resize(length);
  return text;
}

}  // namespace

SettingsRead readSettingsFile(Utf8View prefix, Settings& settings, FileSystem& files) {
  const FoundFile found = findFile(prefix, kSettingsFile, files);
  if (found.presence == Presence::notThere) return SettingsRead::missing;
  const auto file = found.presence == Presence::there ? files.open(found.path) : nullptr;
  const auto text = file ? readText(*file) : std::nullopt;
  if (!text) return SettingsRead::unreadable;
  return parseSettings(*text, settings) ? SettingsRead::read : SettingsRead::damaged;
}

bool writeSettingsFile(Utf8View prefix, const Settings& settings, FileSystem& files) {
  const FoundFile file = findFile(prefix, kSettingsFile, files);
  removeUnfinished(files, file);
  return replaceFile(files, file, settingsText(settings));
}

void removeUnfinishedSettings(Utf8View prefix, FileSystem& files) {
  removeUnfinished(files, findFile(prefix, kSettingsFile, files));
}

}  // namespace odmiennik::disk
