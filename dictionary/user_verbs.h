// The user's own verbs: one record a verb in the file Czasowniki.dat of the program's folder.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dictionary/file_system.h"
#include "dictionary/messages.h"
#include "dictionary/user_record.h"
#include "engine/ports.h"

namespace odmiennik::dictionary {

class UserRecordReader;
class FileReplacement;
struct CopyResult;

enum class SaveResult : std::uint8_t { replaced, appended, failed };
enum class DeleteResult : std::uint8_t { deleted, notFound, failed };

// `count` is the stored number of verbs, kept by the settings file: look-up and save go by it, list
// and delete by the file's end. Damage, a file that cannot be read and failed writes are shown
// through `messages`; the first two once per object. The class keeps no contents in memory: every
// call reads the file.
class UserVerbsFile final : public engine::UserVerbs {
 public:
  // `prefix` is put before every bare file name (see AppFolder).
  UserVerbsFile(std::string prefix, std::int32_t count, MessageBoxes& messages,
                FileSystem& files = systemFiles());

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

  // Puts back `Czas.dat` when a crash left no `Czasowniki.dat`, and removes what an interrupted
  // rewrite left beside it; called once at start-up.
  void recoverAfterCrash();

  // Calls `changed` after every save and every deletion that succeeded.
  void tellOfChanges(std::function<void()> changed) { changed_ = std::move(changed); }

  [[nodiscard]] std::int32_t count() const { return count_; }

 private:
  using Visit = std::function<bool(const UserRecordReader&)>;

  bool visitRecords(std::int64_t limit, const Visit& isEnough);
  [[nodiscard]] CopyResult rewriteWith(const UserVerbRecord& record);
  [[nodiscard]] bool rewriteWithout(std::string_view infinitive);
  [[nodiscard]] bool keepAndSwap(FileReplacement& content, const std::filesystem::path& keptAs);
  [[nodiscard]] std::filesystem::path file() const;
  void removePrevious();
  void showDamage(std::int64_t record);
  void showUnreadable();

  std::string prefix_;
  std::int32_t count_;
  MessageBoxes& messages_;
  FileSystem& files_;
  std::function<void()> changed_ = [] {};
  bool isDamageShown_ = false;
  bool isUnreadableShown_ = false;
};

}  // namespace odmiennik::dictionary
