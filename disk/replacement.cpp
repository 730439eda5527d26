// SPDX-License-Identifier: GPL-3.0-or-later
// Replacing a file.
#include "disk/replacement.h"

#include "disk/names.h"

namespace odmiennik::disk {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kBlock = std::size_t{1} << 16;

// Beside the file, so that both are on one disk: "Czasowniki.dat" -> "Czasowniki.dat.new".
fs::path nameBeside(const fs::path& file, int number) {
  fs::path beside = file;
  beside += number == 1 ? ".new" : ".new" + std::to_string(number);
  return beside;
}

// Creating refuses a name that is taken after all.
fs::path freeNameBeside(const fs::path& file, FileSystem& files) {
  int number = 1;
  while (files.presence(nameBeside(file, number)) == Presence::there) ++number;
  return nameBeside(file, number);
}

}  // namespace

std::optional<ReplacedFile> fileToReplace(FileSystem& files, const FoundFile& found) {
  if (found.presence == Presence::unknown) return std::nullopt;
  const auto real = files.realFile(found.path);
  const FileLook look = real ? files.look(*real) : FileLook{};
  if (look.presence == Presence::unknown) return std::nullopt;
  return ReplacedFile{*real, look, found.presence == Presence::notThere};
}

FileReplacement::FileReplacement(FileSystem& files, std::optional<ReplacedFile> target)
    : files_(files), target_(std::move(target)) {
  if (!target_) return;
  fresh_ = freeNameBeside(target_->path, files_);
  output_ = files_.create(fresh_, target_->path);
  isGood_ = isLeftBehind_ = output_ != nullptr;
}

FileReplacement::~FileReplacement() {
  output_.reset();
  if (isLeftBehind_) files_.remove(fresh_);
}

void FileReplacement::write(std::string_view bytes) {
  if (!isGood_) return;
  pending_.append(bytes);
  if (pending_.size() >= kBlock) flush();
}

void FileReplacement::flush() {
  isGood_ = output_->write(pending_);
  pending_.clear();
}

bool FileReplacement::finish() {
  if (!isGood_) return false;
  flush();
  isGood_ = isGood_ && output_->finish();
  output_.reset();
  return isGood_;
}

bool FileReplacement::isTargetAsItWas() const {
  return target_ && files_.look(target_->path) == target_->look;
}

bool FileReplacement::swapIn() {
  if (!isGood_ || output_) return false;
  const fs::path& target = target_->path;
  const bool isMoved =
      target_->isNew ? files_.moveToNew(fresh_, target) : files_.moveOver(fresh_, target);
  if (!isMoved) return false;
  isLeftBehind_ = false;
  files_.syncFolder(folderOf(target));
  return true;
}

bool replaceFile(FileSystem& files, const FoundFile& target, std::string_view content) {
  FileReplacement replacement(files, fileToReplace(files, target));
  replacement.write(content);
  return replacement.finish() && replacement.swapIn();
}

void removeUnfinished(FileSystem& files, const FoundFile& target) {
  const auto real =
      target.presence == Presence::unknown ? std::nullopt : files.realFile(target.path);
  if (!real) return;
  const auto lock = files.lock(folderOf(*real));
  if (!lock) return;
  for (int number = 1; files.presence(nameBeside(*real, number)) == Presence::there; ++number)
    if (!files.remove(nameBeside(*real, number))) return;
}

}  // namespace odmiennik::disk
