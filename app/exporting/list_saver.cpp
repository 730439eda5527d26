// SPDX-License-Identifier: GPL-3.0-or-later
// Saving of lists.
#include "app/exporting/list_saver.h"

#include <QElapsedTimer>

#include "app/common/text.h"
#include "engine/windows1252.h"

namespace odmiennik::app {

ListSaver::ListSaver(engine::Driver& driver, engine::Variety variety, disk::FileSystem& files,
                     const SavedName& name, SavedList list)
    : driver_(driver), list_(std::move(list)), file_(files, name, fromUtf8(list_.name)) {
  conjugation_.variety = variety;
}

ListSaver::State ListSaver::goOn(int milliseconds) {
  QElapsedTimer time;
  time.start();
  while (file_.isGood() && next_ < count() && time.elapsed() < milliseconds) addNext();
  if (!file_.isGood()) return State::failed;
  if (next_ < count()) return State::going;
  return file_.finish() ? State::saved : State::failed;
}

// A verb of the user's own may be one that no rule conjugates any more, or the word that resets.
void ListSaver::addNext() {
  static const std::vector<Utf8Text> kNoMessages;
  const std::string& infinitive = list_.infinitives[next_++];
  if (driver_.conjugate(conjugation_, infinitive) != engine::Outcome::conjugated) return;
  file_.add({engine::toUtf8(infinitive), conjugation_, kNoMessages, conjugation_.shown.isPronominal,
             false});
}

}  // namespace odmiennik::app
