// SPDX-License-Identifier: GPL-3.0-or-later
// Names of the files in which conjugations are saved.
#include "app/logic/saved_kinds.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace odmiennik::app {
namespace {

static_assert(std::ranges::all_of(kSavedKinds,
                                  [](const auto& row) { return &row == &rowOf(row.kind); }));

constexpr Utf8View kNameless = "odmiana";
constexpr Utf8View kForbidden = "<>:\"/\\|?*";  // by one system or the other
constexpr std::size_t kLongestName = 100;       // bytes

struct Ending {
  SavedKind kind;
  Utf8View suffix;
};
// What a user may type, the shorter one of web pages too.
constexpr Ending kEndings[] = {{SavedKind::pdf, ".pdf"},
                               {SavedKind::html, ".html"},
                               {SavedKind::html, ".htm"},
                               {SavedKind::csv, ".csv"},
                               {SavedKind::anki, ".txt"}};

// Names of devices on Windows, whatever suffix follows.
constexpr Utf8View kDevices[] = {"con", "prn", "aux", "nul"};

// Only behind a name: a file that is called ".csv" has no suffix.
std::optional<Ending> endingOf(Utf8View path) {
  for (const Ending& ending : kEndings) {
    if (path.size() <= ending.suffix.size()) continue;
    const std::size_t start = path.size() - ending.suffix.size();
    const bool hasName = path[start - 1] != '/' && path[start - 1] != '\\';
    if (hasName && isSameButForCase(path.substr(start), ending.suffix)) return ending;
  }
  return std::nullopt;
}

bool mayStand(char letter) {
  return static_cast<unsigned char>(letter) >= ' ' && letter != '\x7F' &&
         kForbidden.find(letter) == Utf8View::npos;
}

// No letter is cut in two.
Utf8View shortened(Utf8View text) {
  if (text.size() <= kLongestName) return text;
  std::size_t size = kLongestName;
  while ((static_cast<unsigned char>(text[size]) & 0xC0) == 0x80) --size;
  return text.substr(0, size);
}

Utf8View trimmed(Utf8View text) {
  const std::size_t first = text.find_first_not_of(" .");
  if (first == Utf8View::npos) return {};
  return text.substr(first, text.find_last_not_of(" .") + 1 - first);
}

}  // namespace

Utf8Text filterOf(SavedKind kind) {
  const SavedKindRow& row = rowOf(kind);
  return Utf8Text(row.words).append(" (*.").append(row.suffix).append(")");
}

SavedName savedName(Utf8View path, SavedKind chosen) {
  if (const auto ending = endingOf(path)) return {Utf8Text(path), ending->kind};
  return {Utf8Text(path).append(".").append(rowOf(chosen).suffix), chosen};
}

Utf8View withoutSuffix(Utf8View path) {
  const auto ending = endingOf(path);
  return path.substr(0, path.size() - (ending ? ending->suffix.size() : 0));
}

Utf8Text fileNameFor(Utf8View text) {
  const Utf8View wanted = trimmed(shortened(text));
  Utf8Text name(wanted);
  std::ranges::replace_if(
      name, [](char letter) { return !mayStand(letter); }, '_');
  if (name.empty()) return Utf8Text(kNameless);
  const auto isName = [&](Utf8View device) { return isSameButForCase(name, device); };
  if (std::ranges::any_of(kDevices, isName)) name.push_back('_');
  return name;
}

}  // namespace odmiennik::app
