// SPDX-License-Identifier: GPL-3.0-or-later
// Looking up, listing, saving and deleting the user's own verbs.
#include "dictionary/user_verbs.h"

#include <algorithm>
#include <limits>

#include "dictionary/file_names.h"
#include "dictionary/user_verbs_rewrite.h"
#include "engine/normalization.h"
#include "engine/windows1252.h"

namespace odmiennik::dictionary {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kVerbs = "Czasowniki.dat";
constexpr std::string_view kPreviousVerbs = "Czas.dat";
constexpr std::string_view kBackup = "Czasowniki.bak";

// A save replaces "Aimer" by "aimer", but not "se laver" by "laver".
auto isOfVerb(std::string_view infinitive) {
  std::string wanted;
  engine::normalize(infinitive, wanted);
  return [wanted, stored = std::string()](std::string_view text) mutable {
    engine::normalize(text, stored);
    return stored == wanted;
  };
}

// deliberate: a delete goes by the entry of the list, which tells "Aimer" from "aimer".
auto isKeptAs(std::string_view infinitive) {
  return [wanted = engine::keptInfinitive(infinitive)](std::string_view text) {
    return engine::keptInfinitive(text) == wanted;
  };
}

}  // namespace

UserVerbsFile::UserVerbsFile(std::string prefix, std::int32_t count, MessageBoxes& messages,
                             FileSystem& files)
    : prefix_(std::move(prefix)),
      newFile_(pathOf(prefix_ + std::string(kVerbs))),
      count_(count),
      messages_(messages),
      files_(files) {}

FoundFile UserVerbsFile::find() const { return findFile(prefix_, kVerbs, files_); }

// The first record that differs by its prefix only is taken on the way, lest the file be read
// twice.
bool UserVerbsFile::load(std::string_view infinitive, engine::FormTable& forms,
                         std::uint8_t& storedAux) {
  if (count_ <= 0 && files_.presence(newFile_) == Presence::notThere) return false;
  const FoundFile found = find();
  takeNoticeOf(found.path);
  const std::string_view key = engine::withoutReflexivePrefix(infinitive);
  std::string stored;
  bool isFound = false;
  visitRecords(found, count_, [&](const UserRecordReader& records) {
    engine::normalize(records.outline().infinitive, stored);
    const bool isSame = stored == infinitive;
    if (!isSame && (isFound || engine::withoutReflexivePrefix(stored) != key)) return false;
    readForms(records.line(), forms);
    storedAux = auxiliaryOf(records.outline().flag);
    isFound = true;
    return isSame;
  });
  return isFound;
}

std::vector<std::string> UserVerbsFile::infinitives() {
  std::vector<std::string> listed;
  lookAgain();
  visitRecords(find(), kAllRecords, [&](const UserRecordReader& records) {
    listed.push_back(engine::keptInfinitive(records.outline().infinitive));
    return false;
  });
  return listed;
}

// Shows every readable record to `isEnough` until it has enough; false when reading failed.
bool UserVerbsFile::visitRecords(const FoundFile& found, std::int64_t limit,
                                 const Visit& isEnough) {
  if (limit <= 0 || found.presence == Presence::notThere) return true;
  const bool isThere = found.presence == Presence::there;
  UserRecordReader records(isThere ? files_.open(found.path) : nullptr);
  while (records.number() < limit) {
    const RecordRead read = records.next();
    if (read == RecordRead::endOfFile) break;
    if (read == RecordRead::failed) {
      showUnreadable();
      return false;
    }
    if (read == RecordRead::damaged)
      showDamage(records.number());
    else if (isEnough(records))
      break;
  }
  return true;
}

void UserVerbsFile::lookAgain() { takeNoticeOf(find().path); }

// A file that has gone leaves the count as it is: it may come back. The first look changes nothing
// either, since the stored count and the file are expected to disagree after a crash.
void UserVerbsFile::takeNoticeOf(const fs::path& file) {
  const FileLook look = files_.look(file);
  if (look.presence == Presence::unknown || seen_ == look) return;
  if (seen_ && look.presence == Presence::there) {
    const auto records = recordsIn(file);
    if (!records) return;  // tried again at the next look
    count_ = static_cast<std::int32_t>(*records);
  }
  seen_ = look;
}

// Every line is a record, however damaged; nothing when not all could be read.
std::optional<std::int64_t> UserVerbsFile::recordsIn(const fs::path& file) {
  constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
  UserRecordReader records(files_.open(file));
  RecordRead read = RecordRead::record;
  while (read != RecordRead::endOfFile && records.number() < kMost)
    if ((read = records.next()) == RecordRead::failed) return std::nullopt;
  return records.number();
}

SaveResult UserVerbsFile::save(const UserVerbRecord& record) {
  if (const auto slot = quotedForm(record)) {
    messages_.show(MessageId::formCannotBeSaved, engine::toUtf8(record.forms[*slot]));
    return SaveResult::failed;
  }
  const CopyResult copied =
      rewriteInTurn([&](const ReplacedFile& target) { return rewriteWith(record, target); });
  if (!copied.isComplete) {
    messages_.show(MessageId::userVerbsNotSaved);
    return SaveResult::failed;
  }
  removePrevious();
  const bool isAppended = copied.changed == 0;
  if (isAppended && count_ < std::numeric_limits<std::int32_t>::max())
    count_ = std::max(count_, 0) + 1;
  if (copied.firstDamaged != 0) showDamage(copied.firstDamaged);
  changed_();
  return isAppended ? SaveResult::appended : SaveResult::replaced;
}

// Two programs in one folder take turns. One that knows no turns is noticed by a last look before
// the swap, and what it has written is read anew. Complete only when the new file stands in the
// place of the old.
CopyResult UserVerbsFile::rewriteInTurn(const Rewrite& rewrite) {
  constexpr int kTries = 5;
  const auto lock = files_.lock(folderOf(newFile_));
  for (int tries = 0; lock && tries < kTries; ++tries) {
    const auto target = fileToReplace(files_, find());
    if (!target) break;
    takeNoticeOf(target->path);
    const CopyResult copied = rewrite(*target);
    if (copied.isOvertaken) continue;
    if (copied.isComplete) seen_ = files_.look(target->path);
    return copied;
  }
  return {};
}

CopyResult UserVerbsFile::rewriteWith(const UserVerbRecord& record, const ReplacedFile& target) {
  const std::string line = recordLine(record);
  UserVerbsRewrite rewrite(files_, target);
  CopyResult copied{.isComplete = true};
  std::optional<fs::path> backup = fs::path();
  if (target.look.presence == Presence::there) {
    UserRecordReader records(files_.open(target.path));
    copied =
        rewrite.copy(records, count_, {isOfVerb(record.forms[engine::slot::kInfinitive]), line});
    if (copied.isComplete && records.hasMore()) backup = freeName(prefix_, kBackup, files_);
  }
  if (copied.changed == 0) rewrite.append(line);
  copied.isComplete = copied.isComplete && backup && rewrite.content().finish();
  if (copied.isComplete) keepAndSwap(rewrite.content(), target, *backup, copied);
  return copied;
}

// Looked for first, since what finds nothing must not touch the disk.
DeleteResult UserVerbsFile::remove(std::string_view infinitive) {
  const auto isMeant = isKeptAs(infinitive);
  bool isFound = false;
  const bool isRead = visitRecords(find(), kAllRecords, [&](const UserRecordReader& records) {
    return isFound = isMeant(records.outline().infinitive);
  });
  if (isRead && !isFound) return DeleteResult::notFound;
  const CopyResult copied = isRead ? rewriteInTurn([&](const ReplacedFile& target) {
    return rewriteWithout(infinitive, target);
  })
                                   : CopyResult{};
  if (!copied.isComplete) {
    messages_.show(MessageId::userVerbsNotSaved);
    return DeleteResult::failed;
  }
  if (copied.changed == 0) return DeleteResult::notFound;  // another program was faster
  if (count_ > 0) --count_;
  changed_();
  return DeleteResult::deleted;
}

CopyResult UserVerbsFile::rewriteWithout(std::string_view infinitive, const ReplacedFile& target) {
  UserVerbsRewrite rewrite(files_, target);
  CopyResult copied;
  {
    UserRecordReader records(files_.open(target.path));
    copied = rewrite.copy(records, kAllRecords, {isKeptAs(infinitive), {}});
  }
  if (!copied.isComplete || copied.changed == 0) return copied;
  copied.isComplete = rewrite.content().finish();
  if (!copied.isComplete) return copied;
  removePrevious();
  keepAndSwap(rewrite.content(), target, pathOf(prefix_ + std::string(kPreviousVerbs)), copied);
  return copied;
}

// The old content gets its second name first, so that it never is without one.
void UserVerbsFile::keepAndSwap(FileReplacement& content, const ReplacedFile& target,
                                const fs::path& keptAs, CopyResult& copied) {
  copied.isOvertaken = !content.isTargetAsItWas();
  copied.isComplete = !copied.isOvertaken;
  if (copied.isComplete && !keptAs.empty()) {
    copied.isComplete = files_.keepAs(target.path, keptAs);
    if (copied.isComplete) files_.syncFolder(folderOf(keptAs));
  }
  copied.isComplete = copied.isComplete && content.swapIn();
}

void UserVerbsFile::removePrevious() {
  if (const auto previous = existingFile(prefix_, kPreviousVerbs, files_)) files_.remove(*previous);
}

void UserVerbsFile::recoverAfterCrash() {
  const FoundFile found = find();
  removeUnfinished(files_, found);
  if (count_ != 0 && found.presence == Presence::unknown) showUnreadable();
  if (count_ != 0 && found.presence == Presence::notThere) putBackPrevious();
  lookAgain();
}

// A folder under that name is nothing to put back. deliberate: whatever has come to stand under the
// file's name meanwhile stays.
void UserVerbsFile::putBackPrevious() {
  const FoundFile previous = findFile(prefix_, kPreviousVerbs, files_);
  if (previous.presence == Presence::notThere) return;
  std::error_code fault;
  const bool isOrdinary = fs::is_regular_file(previous.path, fault);
  if (!isOrdinary && !fault) return;
  if (!isOrdinary || !files_.moveToNew(previous.path, newFile_)) {
    messages_.show(MessageId::userVerbsNotRestored);
    return;
  }
  files_.syncFolder(folderOf(newFile_));
}

void UserVerbsFile::showDamage(std::int64_t record) {
  if (isDamageShown_) return;
  isDamageShown_ = true;
  messages_.show(MessageId::userVerbsDamaged, std::to_string(record));
}

void UserVerbsFile::showUnreadable() {
  if (isUnreadableShown_) return;
  isUnreadableShown_ = true;
  messages_.show(MessageId::userVerbsUnreadable);
}

}  // namespace odmiennik::dictionary
