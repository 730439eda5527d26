// SPDX-License-Identifier: GPL-3.0-or-later
// The system calls behind reading and replacing files: the one seam between systems, and the place
// where a test lets a disk fill up or the power fail.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace odmiennik::disk {

// What stands under a name. Whoever cannot tell must not take it for a missing file: a network
// folder that does not answer for a moment still has its files.
enum class Presence : std::uint8_t {
  there,
  notThere,  // the system says that there is no such name, or no such folder
  unknown,   // asking failed
};

// Tells a file from another one that took its place, and from itself rewritten.
struct FileStamp {
  std::uint64_t device = 0;
  std::uint64_t number = 0;  // of the file on its device
  std::uint64_t size = 0;
  std::int64_t changed = 0;  // the time, in the system's own finest unit

  bool operator==(const FileStamp&) const = default;
};

struct FileLook {
  Presence presence = Presence::unknown;
  FileStamp stamp;  // of a file that is there

  bool operator==(const FileLook&) const = default;
};

// Held while a file is read, rewritten and swapped, so that two programs take turns.
class FolderLock {
 public:
  virtual ~FolderLock() = default;
};

// A file open for reading, from its start.
class InputFile {
 public:
  virtual ~InputFile() = default;
  // The number of bytes put into `buffer`: 0 at the file's end, less than 0 when reading failed.
  [[nodiscard]] virtual std::ptrdiff_t read(char* buffer, std::size_t size) = 0;
  // Reading goes on `count` bytes further; false when that cannot be done. By itself it reads what
  // it passes over.
  [[nodiscard]] virtual bool skip(std::uint64_t count);
};

// A new file, open for writing.
class OutputFile {
 public:
  virtual ~OutputFile() = default;
  [[nodiscard]] virtual bool write(std::string_view bytes) = 0;
  // Has everything on the disk itself and closes the file; nothing is written afterwards.
  [[nodiscard]] virtual bool finish() = 0;
};

class FileSystem {
 public:
  virtual ~FileSystem() = default;

  // What stands under that name itself, a link to nothing included.
  [[nodiscard]] virtual Presence presence(const std::filesystem::path& name) = 0;

  // The file behind any links.
  [[nodiscard]] virtual FileLook look(const std::filesystem::path& file) = 0;

  // The file that a link stands for; any other file, and a link to nothing, as it is. Nothing when
  // that cannot be told.
  [[nodiscard]] virtual std::optional<std::filesystem::path> realFile(
      const std::filesystem::path& file) = 0;

  // The names in a folder, none in one that is not there; nothing when not all could be read.
  [[nodiscard]] virtual std::optional<std::vector<std::filesystem::path>> names(
      const std::filesystem::path& folder) = 0;

  // Waits until no other program holds the folder, but not for long: nothing when one still does.
  // Where the system has no locks, whoever asks gets one that keeps nobody out.
  [[nodiscard]] virtual std::unique_ptr<FolderLock> lock(const std::filesystem::path& folder) = 0;

  // Opens an ordinary file; nothing when there is none or it may not be read (a folder, a pipe).
  [[nodiscard]] virtual std::unique_ptr<InputFile> open(const std::filesystem::path& file) = 0;

  // Creates `file`, which is to take the place of `replaced` and gets its permissions; nothing when
  // `file` exists, the user may not write `replaced`, or it cannot be told what stands there.
  [[nodiscard]] virtual std::unique_ptr<OutputFile> create(
      const std::filesystem::path& file, const std::filesystem::path& replaced) = 0;

  // Keeps the content of `file` under a second name as well; refuses a name that is taken.
  [[nodiscard]] virtual bool keepAs(const std::filesystem::path& file,
                                    const std::filesystem::path& secondName) = 0;

  // Moves `file` to `target` in one step: whoever opens `target` meets the old file or the new one.
  [[nodiscard]] virtual bool moveOver(const std::filesystem::path& file,
                                      const std::filesystem::path& target) = 0;

  // Moves `file` to a name that nothing stands under; false, and nothing moved, when it is taken.
  [[nodiscard]] virtual bool moveToNew(const std::filesystem::path& file,
                                       const std::filesystem::path& target) = 0;

  virtual bool remove(const std::filesystem::path& file) = 0;

  // Has the names in `folder` on the disk, as far as the system offers it.
  virtual void syncFolder(const std::filesystem::path& folder) = 0;
};

// The files of the system the program runs on.
[[nodiscard]] FileSystem& systemFiles();

}  // namespace odmiennik::disk
