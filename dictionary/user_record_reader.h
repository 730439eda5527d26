// SPDX-License-Identifier: GPL-3.0-or-later
// The records of an open user-verbs file, one after the other, damaged ones included.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "dictionary/user_record.h"
#include "disk/lines.h"
#include "disk/replacement.h"

namespace odmiennik::dictionary {

enum class RecordRead : std::uint8_t { record, damaged, endOfFile, failed };

class UserRecordReader {
 public:
  // `file` may be nothing, as FileSystem::open answers it: reading it fails.
  explicit UserRecordReader(std::unique_ptr<disk::InputFile> file);

  // Reads on to the next line. Every line counts as a record, whatever stands in it.
  [[nodiscard]] RecordRead next();

  // Of the record read last; a damaged record has no outline.
  [[nodiscard]] const RecordOutline& outline() const { return outline_; }
  [[nodiscard]] std::string_view line() const { return line_.text; }
  [[nodiscard]] std::int64_t number() const { return number_; }
  // Where its line begins, in bytes from where reading began.
  [[nodiscard]] std::uint64_t start() const { return line_.start; }

  // Whether a line end stands behind what has been read of the record; the file's last may lack it.
  [[nodiscard]] bool isLineEnded() const { return !line_.end.empty(); }

  // Appends a damaged record byte for byte, its line end included; false when reading it failed or
  // it is longer than `longest`.
  [[nodiscard]] bool copyDamaged(disk::FileReplacement& target, std::uint64_t longest);

  // Whether the file holds anything behind the record read last.
  [[nodiscard]] bool hasMore();

 private:
  [[nodiscard]] disk::LineRead readPiece();

  std::unique_ptr<disk::InputFile> file_;
  std::unique_ptr<disk::LineReader> lines_;
  disk::Line line_;
  RecordOutline outline_;
  std::int64_t number_ = 0;
};

}  // namespace odmiennik::dictionary
