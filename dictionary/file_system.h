// The system calls behind reading and replacing files: the one seam between systems, and the place
// where a test lets a disk fill up or the power fail.
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string_view>

namespace odmiennik::dictionary {

// A file open for reading, from its start.
class InputFile {
 public:
  virtual ~InputFile() = default;
  // The number of bytes put into `buffer`: 0 at the file's end, less than 0 when reading failed.
  [[nodiscard]] virtual std::ptrdiff_t read(char* buffer, std::size_t size) = 0;
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

  // Opens an ordinary file; nothing when there is none or it may not be read (a folder, a pipe).
  [[nodiscard]] virtual std::unique_ptr<InputFile> open(const std::filesystem::path& file) = 0;

  // Creates `file`, which is to take the place of `replaced` and gets its permissions; nothing when
  // `file` exists or the user may not write `replaced`.
  [[nodiscard]] virtual std::unique_ptr<OutputFile> create(
      const std::filesystem::path& file, const std::filesystem::path& replaced) = 0;

  // Keeps the content of `file` under a second name as well; refuses a name that is taken.
  [[nodiscard]] virtual bool keepAs(const std::filesystem::path& file,
                                    const std::filesystem::path& secondName) = 0;

  // Moves `file` to `target` in one step: whoever opens `target` meets the old file or the new one.
  [[nodiscard]] virtual bool moveOver(const std::filesystem::path& file,
                                      const std::filesystem::path& target) = 0;

  virtual bool remove(const std::filesystem::path& file) = 0;

  // Has the names in `folder` on the disk, as far as the system offers it.
  virtual void syncFolder(const std::filesystem::path& folder) = 0;
};

// The files of the system the program runs on.
[[nodiscard]] FileSystem& systemFiles();

}  // namespace odmiennik::dictionary
