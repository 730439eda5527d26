// SPDX-License-Identifier: GPL-3.0-or-later
// What the start of the program decides, and the names that it knows.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "engine/utf8.h"

namespace odmiennik::app {

// The word that the entry box starts with, selected.
inline constexpr Utf8View kEntryWord = "infinitif";

// Bare file names: the help file, the marker of a first start, the character map.
inline constexpr Utf8View kHelpFile = "Werbolin.chm";
inline constexpr Utf8View kFirstStartMarker = "tmp.dat";
inline constexpr Utf8View kCharacterMap = "CHARMAP.EXE";

// Of the per-user store; the first two are 1 when they were never written.
inline constexpr Utf8View kStoreSection = "Ustawienia";
inline constexpr Utf8View kTipAtStartKey = "Pokazuj poradę dnia";
inline constexpr Utf8View kCompletionKey = "Autouzupełnianie";
inline constexpr Utf8View kHelpZoomKey = "Powiększenie pomocy";
inline constexpr Utf8View kNormKey = "Norma";

struct Version {
  int major = 0;
  int minor = 0;
  int revision = 0;
};

// {1, 0, 12} -> "1.0.12"
[[nodiscard]] Utf8Text versionText(Version version);

// {1, 0, 12} -> "Odmiennik v.1.0.12"
[[nodiscard]] Utf8Text captionWithVersion(Version version);

// The help file in the program's folder. deliberate: a separator is always put between, so that a
// folder that ends in one has two.
[[nodiscard]] Utf8Text helpFilePath(Utf8View folder, char separator);

// The character map in the system's folder, named as files of the program's own folder are.
[[nodiscard]] std::string characterMapPath(std::string_view windowsFolder);

// Whether the layout is rescaled at start: unless the screen is exactly 800 pixels of 15 twips
// wide.
[[nodiscard]] constexpr bool isRescaledAtStart(int screenTwips) { return screenTwips != 12000; }

// Adds one; a counter that is full stays there.
void countOne(std::int32_t& counter);

}  // namespace odmiennik::app
