// SPDX-License-Identifier: GPL-3.0-or-later
// The copying that saving and deleting a user verb have in common.
#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <string_view>

#include "dictionary/user_record_reader.h"
#include "disk/replacement.h"

namespace odmiennik::dictionary {

// What is written in the place of every record that is meant; nothing removes them.
struct RecordChange {
  std::function<bool(std::string_view)> isMeant;  // asked with slot 96 as it stands in the line
  std::string_view replacement;                   // a line of the writer's
};

struct CopyResult {
  bool isComplete = false;  // everything could be read
  std::int64_t changed = 0;
  bool isOvertaken = false;       // the file has changed since it was read
  std::int64_t firstDamaged = 0;  // the number of the first damaged record, 0 for none
};

inline constexpr std::int64_t kAllRecords = std::numeric_limits<std::int64_t>::max();

// A damaged line that is longer is no text that went wrong: it is not copied for hours, to fill the
// disk; the file stays as it is.
inline constexpr std::uint64_t kLongestCopiedLine = std::uint64_t{64} << 20;

// New content for the user-verbs file, record after record.
class UserVerbsRewrite {
 public:
  UserVerbsRewrite(disk::FileSystem& files, const disk::ReplacedFile& target)
      : content_(files, target) {}

  // Copies at most `limit` records in the writer's format, the changed ones changed, and damaged
  // lines byte for byte; incomplete where one is longer than kLongestCopiedLine.
  [[nodiscard]] CopyResult copy(UserRecordReader& records, std::int64_t limit,
                                const RecordChange& change);

  // Writes a line of the writer's, after ending a damaged one that ended with the old file.
  void append(std::string_view line);

  [[nodiscard]] disk::FileReplacement& content() { return content_; }

 private:
  [[nodiscard]] bool copyDamaged(UserRecordReader& records, CopyResult& result);

  disk::FileReplacement content_;
  bool lacksLineEnd_ = false;
};

}  // namespace odmiennik::dictionary
