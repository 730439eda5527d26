// SPDX-License-Identifier: GPL-3.0-or-later
// Filling the verb list.
#include "app/list/list_filling.h"

#include <QCoreApplication>

#include "app/common/text.h"
#include "dictionary/verb_index.h"
#include "disk/names.h"

namespace odmiennik::app {

UserVerbsFound findUserVerbs(const Utf8Text& prefix, dictionary::UserVerbsFile& userVerbs) {
  // A file that cannot be looked for is read all the same: the reader says what is wrong.
  const bool isPresent =
      disk::findFile(prefix, "Czasowniki.dat").presence != disk::Presence::notThere;
  return {isPresent, userVerbs.infinitives(), userVerbs.count()};
}

void fillLetter(char letter, VerbList& list, ListControls& controls) {
  controls.lstCzasowniki.clear();
  list.beginLetter();
  controls.enable(list.enabled());
  const int number = dictionary::verbCount(letter);
  controls.showFilling(true);
  // Once, so that the label can be read before the loop begins.
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  for (int k = 1; k <= number; ++k) {
    const std::string_view verb = dictionary::verbOfLetter(letter, k);
    list.add(verb);
    controls.lstCzasowniki.addItem(fromFrench(verb));
    controls.growBar(k, number);
  }
  list.finishLetter();
  controls.showFilling(false);
}

}  // namespace odmiennik::app
