// SPDX-License-Identifier: GPL-3.0-or-later
// Where each record of the user-verbs file begins, so that one is read without all before it.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "dictionary/user_record_reader.h"

namespace odmiennik::dictionary {

class UserVerbPlaces {
 public:
  struct Place {
    std::uint32_t hash;   // of the infinitive, normalized and without reflexive prefix
    std::int64_t record;  // counted from 1, damaged ones too
    std::uint64_t start;
  };

  // The hash of the record read last.
  [[nodiscard]] static std::uint32_t hashOf(const UserRecordReader& records);

  // Reads on to the file's end and keeps the places in the stead of those it had; false, and none
  // kept, when reading failed.
  [[nodiscard]] bool read(UserRecordReader& records);

  // The records that may be of `key` (normalized, without reflexive prefix), in file order. Another
  // infinitive may have the same hash.
  [[nodiscard]] std::span<const Place> of(std::string_view key) const;

  [[nodiscard]] std::int64_t recordCount() const { return recordCount_; }
  [[nodiscard]] std::int64_t firstDamaged() const { return firstDamaged_; }  // 0: none is

 private:
  std::vector<Place> places_;  // by hash, then by record
  std::int64_t recordCount_ = 0;
  std::int64_t firstDamaged_ = 0;
};

}  // namespace odmiennik::dictionary
