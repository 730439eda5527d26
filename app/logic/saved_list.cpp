// SPDX-License-Identifier: GPL-3.0-or-later
// Lists of verbs that are saved.
#include "app/logic/saved_list.h"

#include "app/logic/verb_list.h"
#include "dictionary/verb_index.h"

namespace odmiennik::app {

SavedList savedList(int choice, std::vector<std::string> infinitives) {
  if (choice == 0) return {"Moje czasowniki", std::move(infinitives)};
  const Utf8Text letter(1, letterOfChoice(choice));
  return {"Czasowniki na literę " + letter, std::move(infinitives), letter};
}

SavedList wholeIndex() {
  SavedList list{"Wszystkie czasowniki", {}};
  for (int position = 0; position < dictionary::verbCount(); ++position)
    list.infinitives.emplace_back(dictionary::verbAt(position));
  return list;
}

}  // namespace odmiennik::app
