// SPDX-License-Identifier: GPL-3.0-or-later
// Telling records from damaged lines.
#include "dictionary/user_record_reader.h"

namespace odmiennik::dictionary {

UserRecordReader::UserRecordReader(std::unique_ptr<disk::InputFile> file) : file_(std::move(file)) {
  if (file_) lines_ = std::make_unique<disk::LineReader>(*file_);
}

RecordRead UserRecordReader::next() {
  if (!lines_) return RecordRead::failed;
  disk::LineRead status = disk::LineRead::line;
  while (line_.isCut && status == disk::LineRead::line) status = readPiece();
  if (status == disk::LineRead::line) status = readPiece();
  if (status == disk::LineRead::failed) return RecordRead::failed;
  if (status == disk::LineRead::endOfFile) return RecordRead::endOfFile;
  ++number_;
  const bool isTooLong = line_.isCut || line_.text.size() > disk::kLongestLine;
  const auto outline = isTooLong ? std::nullopt : outlineOf(line_.text);
  if (!outline) return RecordRead::damaged;
  outline_ = *outline;
  return RecordRead::record;
}

// A line that is cut and then ends with the file is over.
disk::LineRead UserRecordReader::readPiece() {
  const disk::LineRead status = lines_->next(line_);
  if (status != disk::LineRead::line) line_ = {};
  return status;
}

bool UserRecordReader::copyDamaged(disk::FileReplacement& target, std::uint64_t longest) {
  std::uint64_t length = 0;
  disk::LineRead status = disk::LineRead::line;
  do {
    length += line_.text.size();
    if (length > longest) return false;
    target.write(line_.text);
    target.write(line_.end);
  } while (line_.isCut && (status = readPiece()) == disk::LineRead::line);
  return status != disk::LineRead::failed;
}

bool UserRecordReader::hasMore() { return next() != RecordRead::endOfFile; }

}  // namespace odmiennik::dictionary
