// SPDX-License-Identifier: GPL-3.0-or-later
// Places of records, by the hash of their infinitives.
#include "dictionary/user_verb_places.h"

#include <algorithm>
#include <limits>

#include "engine/normalization.h"
#include "engine/text_hash.h"

namespace odmiennik::dictionary {

std::uint32_t UserVerbPlaces::hashOf(const UserRecordReader& records) {
  return engine::textHash(engine::lookupKey(records.outline().infinitive));
}

bool UserVerbPlaces::read(UserRecordReader& records) {
  constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
  places_.clear();
  recordCount_ = firstDamaged_ = 0;
  RecordRead read = RecordRead::record;
  while (recordCount_ < kMost && (read = records.next()) != RecordRead::endOfFile) {
    if (read == RecordRead::failed) break;
    recordCount_ = records.number();
    if (read == RecordRead::damaged) {
      if (firstDamaged_ == 0) firstDamaged_ = recordCount_;
      continue;
    }
    places_.push_back({hashOf(records), recordCount_, records.start()});
  }
  if (read == RecordRead::failed) places_.clear();
  std::ranges::stable_sort(places_, {}, &Place::hash);
  return read != RecordRead::failed;
}

std::span<const UserVerbPlaces::Place> UserVerbPlaces::of(std::string_view key) const {
  const std::uint32_t hash = engine::textHash(key);
  return {std::ranges::lower_bound(places_, hash, {}, &Place::hash),
          std::ranges::upper_bound(places_, hash, {}, &Place::hash)};
}

}  // namespace odmiennik::dictionary
