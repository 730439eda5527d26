// SPDX-License-Identifier: GPL-3.0-or-later
// Telling records from damaged lines.
#include "dictionary/user_record_reader.h"

namespace odmiennik::dictionary {

UserRecordReader::UserRecordReader(std::unique_ptr<InputFile> file) : file_(std::move(file)) {
  if (file_) lines_ = std::make_unique<LineReader>(*file_);
}

RecordRead UserRecordReader::next() {
  if (!lines_) return RecordRead::failed;
  LineRead status = LineRead::line;
  while (line_.isCut && status == LineRead::line) status = readPiece();
  if (status == LineRead::line) status = readPiece();
  if (status == LineRead::failed) return RecordRead::failed;
  if (status == LineRead::endOfFile) return RecordRead::endOfFile;
  ++number_;
  const bool isTooLong = line_.isCut || line_.text.size() > kLongestLine;
  const auto outline = isTooLong ? std::nullopt : outlineOf(line_.text);
  if (!outline) return RecordRead::damaged;
  outline_ = *outline;
  return RecordRead::record;
}

// A line that is cut and then ends with the file is over.
LineRead UserRecordReader::readPiece() {
  const LineRead status = lines_->next(line_);
  if (status != LineRead::line) line_ = {};
  return status;
}

bool UserRecordReader::copyDamaged(FileReplacement& target, std::uint64_t longest) {
  std::uint64_t length = 0;
  LineRead status = LineRead::line;
  do {
    length += line_.text.size();
    if (length > longest) return false;
    target.write(line_.text);
    target.write(line_.end);
  } while (line_.isCut && (status = readPiece()) == LineRead::line);
  return status != LineRead::failed;
}

bool UserRecordReader::hasMore() { return next() != RecordRead::endOfFile; }

}  // namespace odmiennik::dictionary
