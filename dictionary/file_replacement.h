// Replacing a file so that at every moment either the old or the new content is complete on disk.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "dictionary/file_system.h"

namespace odmiennik::dictionary {

// New content for a file: written beside it, flushed and synced, then swapped in. Whatever fails is
// remembered: the last call tells, and the file is as it was.
class FileReplacement {
 public:
  // `target` is the file to replace or to create; a link is followed to the file it stands for.
  FileReplacement(FileSystem& files, const std::filesystem::path& target);
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;
  // Removes what was written unless it has been swapped in.
  ~FileReplacement();

  void write(std::string_view bytes);

  // Has the new content complete on the disk, still beside the old.
  [[nodiscard]] bool finish();

  // Puts the finished content in the place of the old; true for good.
  [[nodiscard]] bool swapIn();

 private:
  void flush();

  FileSystem& files_;
  std::filesystem::path target_;
  std::filesystem::path fresh_;
  std::unique_ptr<OutputFile> output_;
  std::string pending_;
  bool isGood_ = false;
  bool isLeftBehind_ = false;
};

// The same in one call: replaceFile(systemFiles(), fileFor(prefix, "Werbolin.cfg"), text).
[[nodiscard]] bool replaceFile(FileSystem& files, const std::filesystem::path& target,
                               std::string_view content);

// Removes what replacements of `target` left beside it when the power failed.
void removeUnfinished(FileSystem& files, const std::filesystem::path& target);

}  // namespace odmiennik::dictionary
