// SPDX-License-Identifier: GPL-3.0-or-later
// A list of verbs on its way into a file, a few at a time.
#pragma once

#include <cstddef>

#include "app/exporting/saved_file.h"
#include "app/logic/saved_list.h"
#include "engine/driver.h"

namespace odmiennik::app {

class ListSaver {
 public:
  enum class State : std::uint8_t { going, saved, failed };

  // `driver` outlives it and says nothing of its verbs.
  ListSaver(engine::Driver& driver, engine::Variety variety, disk::FileSystem& files,
            const SavedName& name, SavedList list);

  // Saves the next verbs, for about so long; the last call puts the file into its place.
  [[nodiscard]] State goOn(int milliseconds);

  [[nodiscard]] std::size_t savedCount() const { return next_; }
  [[nodiscard]] std::size_t count() const { return list_.infinitives.size(); }

 private:
  void addNext();

  engine::Driver& driver_;
  SavedList list_;
  SavedFile file_;
  engine::Conjugation conjugation_;
  std::size_t next_ = 0;
};

}  // namespace odmiennik::app
