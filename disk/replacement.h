// SPDX-License-Identifier: GPL-3.0-or-later
// Replacing a file so that at every moment either the old or the new content is complete on disk.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "disk/file_system.h"
#include "disk/names.h"

namespace odmiennik::disk {

// The file that is to be replaced, as it stood when its content was read.
struct ReplacedFile {
  std::filesystem::path path;
  FileLook look;
  bool isNew = false;  // nothing stood under the name, not even a link to nothing
};

// What a look-up by name has found, links followed to the file they stand for; nothing when it
// cannot be told what there is to replace.
[[nodiscard]] std::optional<ReplacedFile> fileToReplace(FileSystem& files, const FoundFile& found);

// New content for a file: written beside it, flushed and synced, then swapped in. Whatever fails is
// remembered: the last call tells, and the file is as it was.
class FileReplacement {
 public:
  // Without a target, nothing can be written. The folder is to be locked by whoever goes by what
  // stood in the old file.
  FileReplacement(FileSystem& files, std::optional<ReplacedFile> target);
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;
  // Removes what was written unless it has been swapped in.
  ~FileReplacement();

  void write(std::string_view bytes);

  // Whether everything has gone well so far; once it has not, whatever is written is in vain.
  [[nodiscard]] bool isGood() const { return isGood_; }

  // Has the new content complete on the disk, still beside the old.
  [[nodiscard]] bool finish();

  // Whether the target is still what it was, or still missing.
  [[nodiscard]] bool isTargetAsItWas() const;

  // Puts the finished content in the place of the old; true for good. A file that was missing must
  // be so still: one that has come meanwhile is never replaced.
  [[nodiscard]] bool swapIn();

 private:
  void flush();

  FileSystem& files_;
  std::optional<ReplacedFile> target_;
  std::filesystem::path fresh_;
  std::unique_ptr<OutputFile> output_;
  std::string pending_;
  bool isGood_ = false;
  bool isLeftBehind_ = false;
};

// The same in one call: replaceFile(files, findFile(prefix, "Werbolin.cfg", files), text).
[[nodiscard]] bool replaceFile(FileSystem& files, const FoundFile& target,
                               std::string_view content);

// Removes what replacements of `target` left beside it when the power failed; not while another
// program may be writing it.
void removeUnfinished(FileSystem& files, const FoundFile& target);

}  // namespace odmiennik::disk
