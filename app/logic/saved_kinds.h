// SPDX-License-Identifier: GPL-3.0-or-later
// The kinds of files in which conjugations are saved, and the names of those files.
#pragma once

#include <array>
#include <cstdint>

#include "engine/utf8.h"

namespace odmiennik::app {

enum class SavedKind : std::uint8_t { pdf, html, csv, anki };

// A kind as the file dialog offers it: its words, then its pattern; and what its names end with.
struct SavedKindRow {
  SavedKind kind;
  Utf8View words;
  Utf8View suffix;
};

inline constexpr std::array kSavedKinds{
    SavedKindRow{SavedKind::pdf, "Strona do druku, PDF", "pdf"},
    SavedKindRow{SavedKind::html, "Strona internetowa, HTML", "html"},
    SavedKindRow{SavedKind::csv, "Arkusz kalkulacyjny, CSV", "csv"},
    SavedKindRow{SavedKind::anki, "Karty do nauki, Anki", "txt"},
};

[[nodiscard]] constexpr const SavedKindRow& rowOf(SavedKind kind) {
  return kSavedKinds[static_cast<std::size_t>(kind)];
}

// "Strona do druku, PDF (*.pdf)"
[[nodiscard]] Utf8Text filterOf(SavedKind kind);

// A file to be saved: where, and what it is to hold.
struct SavedName {
  Utf8Text path;
  SavedKind kind = SavedKind::pdf;
};

// The file that is meant by what was chosen in the dialog. A suffix of some kind goes before the
// kind chosen from the list; any other text is a part of the name, and the suffix is added:
// ("/a/finir", pdf) -> "/a/finir.pdf"; ("/a/finir.csv", pdf) -> "/a/finir.csv", as CSV.
[[nodiscard]] SavedName savedName(Utf8View path, SavedKind chosen);

// The name without the suffix of any kind: "/a/finir.pdf" -> "/a/finir".
[[nodiscard]] Utf8View withoutSuffix(Utf8View path);

// What a file is called after what is in it, on every system, without a suffix: "se laver" stays,
// what no name may hold becomes "_", and nothing at all "odmiana".
[[nodiscard]] Utf8Text fileNameFor(Utf8View text);

}  // namespace odmiennik::app
