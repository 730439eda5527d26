// SPDX-License-Identifier: GPL-3.0-or-later
// Copying the user-verbs file.
#include "dictionary/user_verbs_rewrite.h"

namespace odmiennik::dictionary {

CopyResult UserVerbsRewrite::copy(UserRecordReader& records, std::int64_t limit,
                                  const RecordChange& change) {
  CopyResult result;
  while (records.number() < limit) {
    const RecordRead read = records.next();
    if (read == RecordRead::failed) return result;
    if (read == RecordRead::endOfFile) break;
    if (read == RecordRead::damaged) {
      if (!copyDamaged(records, result)) return result;
    } else if (change.isMeant(records.outline().infinitive)) {
      ++result.changed;
      append(change.replacement);
    } else {
      append(rewrittenLine(records.line()));
    }
  }
  result.isComplete = true;
  return result;
}

bool UserVerbsRewrite::copyDamaged(UserRecordReader& records, CopyResult& result) {
  if (result.firstDamaged == 0) result.firstDamaged = records.number();
  const bool isCopied = records.copyDamaged(content_, kLongestCopiedLine);
  lacksLineEnd_ = !records.isLineEnded();
  return isCopied;
}

void UserVerbsRewrite::append(std::string_view line) {
  if (line.empty()) return;
  if (lacksLineEnd_) content_.write("\r\n");
  lacksLineEnd_ = false;
  content_.write(line);
}

}  // namespace odmiennik::dictionary
