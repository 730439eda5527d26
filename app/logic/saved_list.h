// SPDX-License-Identifier: GPL-3.0-or-later
// A list of verbs whose conjugations are saved in one file.
#pragma once

#include <string>
#include <vector>

#include "engine/utf8.h"

namespace odmiennik::app {

struct SavedList {
  Utf8Text name;                         // of the list, and of the file that is proposed
  std::vector<std::string> infinitives;  // Windows-1252
  Utf8Text letter = {};                  // of a part of the index; empty for the user's own verbs
};

// The list of an item of cmbLista, 0 being the user's own: (1, …).name -> "Czasowniki na literę a".
[[nodiscard]] SavedList savedList(int choice, std::vector<std::string> infinitives);

// All verbs of the index, from a to z.
[[nodiscard]] SavedList wholeIndex();

}  // namespace odmiennik::app
