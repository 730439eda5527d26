// SPDX-License-Identifier: GPL-3.0-or-later
// The user's own verbs: one record a verb in the file Czasowniki.dat of the program's folder.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dictionary/messages.h"
#include "dictionary/user_record.h"
#include "dictionary/user_verb_places.h"
#include "disk/file_system.h"
#include "engine/ports.h"
#include "engine/utf8.h"

namespace odmiennik::disk {
class FileReplacement;
struct ReplacedFile;
struct FoundFile;
}  // namespace odmiennik::disk

namespace odmiennik::dictionary {

class ChosenRecord;
struct CopyResult;

enum class SaveResult : std::uint8_t { replaced, appended, failed };
enum class DeleteResult : std::uint8_t { deleted, notFound, failed };

// `count` is the stored number of verbs, kept by the settings file: look-up and save go by it, list
// and delete by the file's end. When another program has changed the file since it was last looked
// at, the count is the number of its records. Damage, a file that cannot be read and failed writes
// are shown through `messages`; the first two once per object. Of the contents
// only the places of the records are kept, noted once for each change of the file; every call reads
// what it gives from the file.
class UserVerbsFile final : public engine::UserVerbs {
 public:
  // `prefix` is put before every bare file name (see AppFolder).
  UserVerbsFile(Utf8Text prefix, std::int32_t count, MessageBoxes& messages,
                disk::FileSystem& files = disk::systemFiles());

  // A damaged record is passed over, but counted.
  [[nodiscard]] bool load(std::string_view infinitive, engine::FormTable& forms,
                          std::uint8_t& storedAux) override;

  // Replaces every record whose normalized slot 96, prefix included, is `record`'s, or appends it
  // (and counts it): "Aimer" and "aimer" are one verb, "se laver" and "laver" are two. Records
  // behind the stored number are dropped; the file as it was is then kept as Czasowniki.bak.
  // Refused, with a message, is a record that could not be read back: one with a form that begins
  // with a double quote.
  SaveResult save(const UserVerbRecord& record);

  // Removes every record that is kept as `infinitive` (as infinitives() gives it); the count is
  // lowered by one, and the file as it was stays behind as Czas.dat.
  DeleteResult remove(std::string_view infinitive);

  // The infinitive of every readable record as it is kept, in file order.
  [[nodiscard]] std::vector<std::string> infinitives();

  // The stored number of verbs, where it is read only after this object has been made.
  void startWith(std::int32_t count) {
    count_ = count;
    ++version_;
  }

  // Puts back `Czas.dat` when a crash left no `Czasowniki.dat`, and removes what an interrupted
  // rewrite left beside it; called once at start-up.
  void recoverAfterCrash();

  // Calls `changed` after every save and every deletion that succeeded.
  void tellOfChanges(std::function<void()> changed) { changed_ = std::move(changed); }

  // Looks whether another program has changed the file; count() then tells how many verbs it has.
  void lookAgain();

  [[nodiscard]] std::int32_t count() const { return count_; }

  // Another number whenever other records may be found than before: whoever keeps something of them
  // asks lookAgain() and then this.
  [[nodiscard]] std::uint64_t version() const { return version_; }

  // Shows every readable record that a look-up may find, in file order: its forms, which hold until
  // the next one, and its auxiliary.
  void forEach(const std::function<void(const engine::FormTable&, std::uint8_t)>& take);

 private:
  using Visit = std::function<bool(const UserRecordReader&)>;
  using Rewrite = std::function<CopyResult(const disk::ReplacedFile& target)>;

  [[nodiscard]] disk::FoundFile find() const;
  bool visitRecords(const disk::FoundFile& found, std::int64_t limit, const Visit& isEnough);
  bool takeNoticeOf(const std::filesystem::path& file);
  [[nodiscard]] bool readPlaces(const std::filesystem::path& file);
  [[nodiscard]] bool hasPlacesOf(const disk::FoundFile& found);
  [[nodiscard]] bool loadByPlace(const disk::FoundFile& found, ChosenRecord& chosen);
  [[nodiscard]] CopyResult rewriteInTurn(const Rewrite& rewrite);
  [[nodiscard]] CopyResult rewriteWith(const UserVerbRecord& record,
                                       const disk::ReplacedFile& target);
  [[nodiscard]] CopyResult rewriteWithout(std::string_view infinitive,
                                          const disk::ReplacedFile& target);
  void keepAndSwap(disk::FileReplacement& content, const disk::ReplacedFile& target,
                   const std::filesystem::path& keptAs, CopyResult& copied);
  void putBackPrevious();
  void removePrevious();
  void showDamage(std::int64_t record);
  void showUnreadable();
  void see(const disk::FileLook& look);

  Utf8Text prefix_;
  std::filesystem::path newFile_;  // where the first save puts it
  std::int32_t count_;
  MessageBoxes& messages_;
  disk::FileSystem& files_;
  std::function<void()> changed_ = [] {};
  std::optional<disk::FileLook> seen_;  // the file when this program looked at it last
  std::uint64_t version_ = 1;
  UserVerbPlaces places_;
  std::uint64_t versionOfPlaces_ = 0;
  bool isDamageShown_ = false;
  bool isUnreadableShown_ = false;
};

}  // namespace odmiennik::dictionary
