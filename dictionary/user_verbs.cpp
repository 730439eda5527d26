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
    : prefix_(std::move(prefix)), count_(count), messages_(messages), files_(files) {}

fs::path UserVerbsFile::file() const { return linkedFile(fileFor(prefix_, kVerbs)); }

// The first record that differs by its prefix only is taken on the way, lest the file be read
// twice.
bool UserVerbsFile::load(std::string_view infinitive, engine::FormTable& forms,
                         std::uint8_t& storedAux) {
  const std::string_view key = engine::withoutReflexivePrefix(infinitive);
  std::string stored;
  bool isFound = false;
  visitRecords(count_, [&](const UserRecordReader& records) {
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
  visitRecords(kAllRecords, [&](const UserRecordReader& records) {
    listed.push_back(engine::keptInfinitive(records.outline().infinitive));
    return false;
  });
  return listed;
}

// Shows every readable record to `isEnough` until it has enough; false when reading failed. Without
// a record to read, the disk is not even asked.
bool UserVerbsFile::visitRecords(std::int64_t limit, const Visit& isEnough) {
  if (limit <= 0 || !existingFile(prefix_, kVerbs)) return true;
  UserRecordReader records(files_.open(file()));
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

SaveResult UserVerbsFile::save(const UserVerbRecord& record) {
  if (const auto slot = quotedForm(record)) {
    messages_.show(MessageId::formCannotBeSaved, engine::toUtf8(record.forms[*slot]));
    return SaveResult::failed;
  }
  const CopyResult copied = rewriteWith(record);
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

// Complete only when the new file stands in the place of the old.
CopyResult UserVerbsFile::rewriteWith(const UserVerbRecord& record) {
  const std::string line = recordLine(record);
  UserVerbsRewrite rewrite(files_, file());
  CopyResult copied{.isComplete = true};
  fs::path backup;
  if (existingFile(prefix_, kVerbs)) {
    UserRecordReader records(files_.open(file()));
    copied =
        rewrite.copy(records, count_, {isOfVerb(record.forms[engine::slot::kInfinitive]), line});
    if (copied.isComplete && records.hasMore()) backup = freeName(prefix_, kBackup);
  }
  if (copied.changed == 0) rewrite.append(line);
  copied.isComplete =
      copied.isComplete && rewrite.content().finish() && keepAndSwap(rewrite.content(), backup);
  return copied;
}

DeleteResult UserVerbsFile::remove(std::string_view infinitive) {
  const auto isMeant = isKeptAs(infinitive);
  bool isFound = false;
  const bool isRead = visitRecords(kAllRecords, [&](const UserRecordReader& records) {
    return isFound = isMeant(records.outline().infinitive);
  });
  if (isRead && !isFound) return DeleteResult::notFound;
  if (!isRead || !rewriteWithout(infinitive)) {
    messages_.show(MessageId::userVerbsNotSaved);
    return DeleteResult::failed;
  }
  if (count_ > 0) --count_;
  changed_();
  return DeleteResult::deleted;
}

bool UserVerbsFile::rewriteWithout(std::string_view infinitive) {
  UserVerbsRewrite rewrite(files_, file());
  {
    UserRecordReader records(files_.open(file()));
    const CopyResult copied = rewrite.copy(records, kAllRecords, {isKeptAs(infinitive), {}});
    if (!copied.isComplete) return false;
  }
  if (!rewrite.content().finish()) return false;
  removePrevious();
  return keepAndSwap(rewrite.content(), pathOf(prefix_ + std::string(kPreviousVerbs)));
}

// The old content gets its second name first, so that it never is without one.
bool UserVerbsFile::keepAndSwap(FileReplacement& content, const fs::path& keptAs) {
  if (!keptAs.empty()) {
    if (!files_.keepAs(file(), keptAs)) return false;
    files_.syncFolder(folderOf(keptAs));
  }
  return content.swapIn();
}

void UserVerbsFile::removePrevious() {
  if (const auto previous = existingFile(prefix_, kPreviousVerbs)) files_.remove(*previous);
}

void UserVerbsFile::recoverAfterCrash() {
  removeUnfinished(files_, file());
  if (count_ == 0 || existingFile(prefix_, kVerbs)) return;
  const auto previous = existingFile(prefix_, kPreviousVerbs);
  std::error_code ignored;
  if (!previous || !fs::is_regular_file(*previous, ignored)) return;
  if (!files_.moveOver(*previous, file())) {
    messages_.show(MessageId::userVerbsNotRestored);
    return;
  }
  files_.syncFolder(folderOf(file()));
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
