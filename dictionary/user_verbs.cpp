// SPDX-License-Identifier: GPL-3.0-or-later
// Looking up, listing, saving and deleting the user's own verbs.
#include "dictionary/user_verbs.h"

#include <algorithm>
#include <limits>

#include "dictionary/user_verbs_rewrite.h"
#include "disk/names.h"
#include "engine/normalization.h"
#include "engine/windows1252.h"

namespace odmiennik::dictionary {
namespace {

namespace fs = std::filesystem;

constexpr Utf8View kVerbs = "Czasowniki.dat";
constexpr Utf8View kPreviousVerbs = "Czas.dat";
constexpr Utf8View kBackup = "Czasowniki.bak";

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

UserVerbsFile::UserVerbsFile(Utf8Text prefix, std::int32_t count, MessageBoxes& messages,
                             disk::FileSystem& files)
    : prefix_(std::move(prefix)),
      newFile_(disk::pathOf(prefix_ + Utf8Text(kVerbs))),
      count_(count),
      messages_(messages),
      files_(files) {}

disk::FoundFile UserVerbsFile::find() const { return disk::findFile(prefix_, kVerbs, files_); }

// Of the records whose infinitives are `infinitive` without their prefixes: the first, or better
// the first that has the prefix too.
class ChosenRecord {
 public:
  ChosenRecord(std::string_view infinitive, engine::FormTable& forms, std::uint8_t& storedAux)
      : infinitive_(infinitive),
        key_(engine::withoutReflexivePrefix(infinitive)),
        forms_(forms),
        storedAux_(storedAux) {}

  // Looks at one more record; true when no better one can come.
  bool look(const UserRecordReader& records) {
    engine::normalize(records.outline().infinitive, stored_);
    const bool isSame = stored_ == infinitive_;
    const bool isOfKey = isSame || engine::withoutReflexivePrefix(stored_) == key_;
    if (!isOfKey || (isFound_ && !isSame)) return false;
    readForms(records.line(), forms_);
    storedAux_ = auxiliaryOf(records.outline().flag);
    isFound_ = true;
    return isSame;
  }

  [[nodiscard]] std::string_view key() const { return key_; }
  [[nodiscard]] bool isFound() const { return isFound_; }

 private:
  std::string_view infinitive_, key_;
  engine::FormTable& forms_;
  std::uint8_t& storedAux_;
  std::string stored_;
  bool isFound_ = false;
};

bool UserVerbsFile::load(std::string_view infinitive, engine::FormTable& forms,
                         std::uint8_t& storedAux) {
  if (count_ <= 0 && files_.presence(newFile_) == disk::Presence::notThere) return false;
  const disk::FoundFile found = find();
  const bool isKnown = takeNoticeOf(found.path) && count_ > 0 && hasPlacesOf(found);
  ChosenRecord chosen(infinitive, forms, storedAux);
  const bool isRead = isKnown && loadByPlace(found, chosen);
  if (isRead) return chosen.isFound();
  ChosenRecord read(infinitive, forms, storedAux);
  visitRecords(found, count_, [&](const UserRecordReader& records) { return read.look(records); });
  return read.isFound();
}

// False when the file is no longer what the places were noted of.
bool UserVerbsFile::loadByPlace(const disk::FoundFile& found, ChosenRecord& chosen) {
  std::int64_t last = count_;
  for (const UserVerbPlaces::Place& place : places_.of(chosen.key())) {
    if (place.record > count_) break;
    std::unique_ptr<disk::InputFile> file = files_.open(found.path);
    if (!file || !file->skip(place.start)) return false;
    UserRecordReader records(std::move(file));
    if (records.next() != RecordRead::record) return false;
    if (UserVerbPlaces::hashOf(records) != place.hash) return false;
    const bool isBest = chosen.look(records);
    if (isBest) last = place.record;
    if (isBest) break;
  }
  const std::int64_t damaged = places_.firstDamaged();
  if (damaged != 0 && damaged <= last) showDamage(damaged);
  return true;
}

// Notes the places where that has not been done since the file has changed.
bool UserVerbsFile::hasPlacesOf(const disk::FoundFile& found) {
  if (found.presence != disk::Presence::there) return false;
  return versionOfPlaces_ == version_ || readPlaces(found.path);
}

bool UserVerbsFile::readPlaces(const fs::path& file) {
  UserRecordReader records(files_.open(file));
  const bool isRead = places_.read(records);
  versionOfPlaces_ = isRead ? version_ : 0;
  return isRead;
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

void UserVerbsFile::forEach(
    const std::function<void(const engine::FormTable&, std::uint8_t)>& take) {
  engine::FormTable forms;
  visitRecords(find(), count_, [&](const UserRecordReader& records) {
    readForms(records.line(), forms);
    take(forms, auxiliaryOf(records.outline().flag));
    return false;
  });
}

// Shows every readable record to `isEnough` until it has enough; false when reading failed.
bool UserVerbsFile::visitRecords(const disk::FoundFile& found, std::int64_t limit,
                                 const Visit& isEnough) {
  if (limit <= 0 || found.presence == disk::Presence::notThere) return true;
  const bool isThere = found.presence == disk::Presence::there;
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

void UserVerbsFile::lookAgain() { static_cast<void>(takeNoticeOf(find().path)); }

// A file that has gone leaves the count as it is: it may come back. The first look changes nothing
// either, since the stored count and the file are expected to disagree after a crash.
// False when it cannot be told whether the file has changed.
bool UserVerbsFile::takeNoticeOf(const fs::path& file) {
  const disk::FileLook look = files_.look(file);
  if (look.presence == disk::Presence::unknown) return false;
  if (seen_ == look) return true;
  const bool isCounted = seen_ && look.presence == disk::Presence::there;
  if (isCounted && !readPlaces(file)) return false;  // tried again at the next look
  if (isCounted) count_ = static_cast<std::int32_t>(places_.recordCount());
  see(look);
  if (isCounted) versionOfPlaces_ = version_;
  return true;
}

void UserVerbsFile::see(const disk::FileLook& look) {
  seen_ = look;
  ++version_;
}

SaveResult UserVerbsFile::save(const UserVerbRecord& record) {
  if (const auto slot = quotedForm(record)) {
    messages_.show(MessageId::formCannotBeSaved, engine::toUtf8(record.forms[*slot]));
    return SaveResult::failed;
  }
  const CopyResult copied =
      rewriteInTurn([&](const disk::ReplacedFile& target) { return rewriteWith(record, target); });
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
  const auto lock = files_.lock(disk::folderOf(newFile_));
  for (int tries = 0; lock && tries < kTries; ++tries) {
    const auto target = disk::fileToReplace(files_, find());
    if (!target) break;
    takeNoticeOf(target->path);
    const CopyResult copied = rewrite(*target);
    if (copied.isOvertaken) continue;
    if (copied.isComplete) see(files_.look(target->path));
    return copied;
  }
  return {};
}

CopyResult UserVerbsFile::rewriteWith(const UserVerbRecord& record,
                                      const disk::ReplacedFile& target) {
  const std::string line = recordLine(record);
  UserVerbsRewrite rewrite(files_, target);
  CopyResult copied{.isComplete = true};
  std::optional<fs::path> backup = fs::path();
  if (target.look.presence == disk::Presence::there) {
    UserRecordReader records(files_.open(target.path));
    copied =
        rewrite.copy(records, count_, {isOfVerb(record.forms[engine::slot::kInfinitive]), line});
    if (copied.isComplete && records.hasMore()) backup = disk::freeName(prefix_, kBackup, files_);
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
  const CopyResult copied = isRead ? rewriteInTurn([&](const disk::ReplacedFile& target) {
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

CopyResult UserVerbsFile::rewriteWithout(std::string_view infinitive,
                                         const disk::ReplacedFile& target) {
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
  keepAndSwap(rewrite.content(), target, disk::pathOf(prefix_ + Utf8Text(kPreviousVerbs)), copied);
  return copied;
}

// The old content gets its second name first, so that it never is without one.
void UserVerbsFile::keepAndSwap(disk::FileReplacement& content, const disk::ReplacedFile& target,
                                const fs::path& keptAs, CopyResult& copied) {
  copied.isOvertaken = !content.isTargetAsItWas();
  copied.isComplete = !copied.isOvertaken;
  if (copied.isComplete && !keptAs.empty()) {
    copied.isComplete = files_.keepAs(target.path, keptAs);
    if (copied.isComplete) files_.syncFolder(disk::folderOf(keptAs));
  }
  copied.isComplete = copied.isComplete && content.swapIn();
}

void UserVerbsFile::removePrevious() {
  if (const auto previous = disk::existingFile(prefix_, kPreviousVerbs, files_))
    files_.remove(*previous);
}

void UserVerbsFile::recoverAfterCrash() {
  const disk::FoundFile found = find();
  disk::removeUnfinished(files_, found);
  if (count_ != 0 && found.presence == disk::Presence::unknown) showUnreadable();
  if (count_ != 0 && found.presence == disk::Presence::notThere) putBackPrevious();
  lookAgain();
}

// A folder under that name is nothing to put back. deliberate: whatever has come to stand under the
// file's name meanwhile stays.
void UserVerbsFile::putBackPrevious() {
  const disk::FoundFile previous = disk::findFile(prefix_, kPreviousVerbs, files_);
  if (previous.presence == disk::Presence::notThere) return;
  std::error_code fault;
  const bool isOrdinary = fs::is_regular_file(previous.path, fault);
  if (!isOrdinary && !fault) return;
  if (!isOrdinary || !files_.moveToNew(previous.path, newFile_)) {
    messages_.show(MessageId::userVerbsNotRestored);
    return;
  }
  files_.syncFolder(disk::folderOf(newFile_));
}

void UserVerbsFile::showDamage(std::int64_t record) {
  if (isDamageShown_) return;
  isDamageShown_ = true;
  messages_.show(MessageId::userVerbsDamaged, decimal(record));
}

void UserVerbsFile::showUnreadable() {
  if (isUnreadableShown_) return;
  isUnreadableShown_ = true;
  messages_.show(MessageId::userVerbsUnreadable);
}

}  // namespace odmiennik::dictionary
