// SPDX-License-Identifier: GPL-3.0-or-later
// Finding files by name.
#include "disk/names.h"

#include <algorithm>

namespace odmiennik::disk {

namespace {

namespace fs = std::filesystem;

Utf8Text textOf(const fs::path& name) {
  const std::u8string text = name.u8string();
  return {text.begin(), text.end()};
}

// The first in the order of the alphabet, so that the choice does not depend on the disk.
FoundFile anySpellingOf(const fs::path& wanted, FileSystem& files) {
  const auto names = files.names(folderOf(wanted));
  if (!names) return {Presence::unknown, wanted};
  const Utf8Text name = textOf(wanted.filename());
  std::optional<fs::path> found;
  for (const fs::path& other : *names)
    if (isSameButForCase(textOf(other), name) && (!found || other < *found)) found = other;
  if (!found) return {Presence::notThere, wanted};
  return {Presence::there, wanted.parent_path() / *found};
}

}  // namespace

fs::path pathOf(Utf8View name) { return {std::u8string(name.begin(), name.end())}; }

fs::path folderOf(const fs::path& file) {
  const fs::path folder = file.parent_path();
  return folder.empty() ? fs::path(".") : folder;
}

FoundFile findFile(Utf8View prefix, Utf8View name, FileSystem& files) {
  const fs::path spelled = pathOf(Utf8Text(prefix).append(name));
  const Presence presence = files.presence(spelled);
  if (presence != Presence::notThere) return {presence, spelled};
  return anySpellingOf(spelled, files);
}

std::optional<fs::path> existingFile(Utf8View prefix, Utf8View name, FileSystem& files) {
  const FoundFile found = findFile(prefix, name, files);
  return found.presence == Presence::there ? std::optional(found.path) : std::nullopt;
}

std::optional<fs::path> freeName(Utf8View prefix, Utf8View name, FileSystem& files) {
  Utf8Text candidate(name);
  for (int number = 2;; ++number) {
    const FoundFile found = findFile(prefix, candidate, files);
    if (found.presence == Presence::unknown) return std::nullopt;
    if (found.presence == Presence::notThere) return pathOf(Utf8Text(prefix).append(candidate));
    candidate = Utf8Text(name) + decimal(number);
  }
}

}  // namespace odmiennik::disk
