// Replacing a file.
#include "dictionary/file_replacement.h"

#include "dictionary/file_names.h"

namespace odmiennik::dictionary {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kBlock = std::size_t{1} << 16;

// Beside the file, so that both are on one disk: "Czasowniki.dat" -> "Czasowniki.dat.new".
fs::path nameBeside(const fs::path& file, int number) {
  fs::path beside = file;
  beside += number == 1 ? ".new" : ".new" + std::to_string(number);
  return beside;
}

fs::path freeNameBeside(const fs::path& file) {
  int number = 1;
  while (isThere(nameBeside(file, number))) ++number;
  return nameBeside(file, number);
}

}  // namespace

FileReplacement::FileReplacement(FileSystem& files, const fs::path& target)
    : files_(files), target_(linkedFile(target)), fresh_(freeNameBeside(target_)) {
  output_ = files_.create(fresh_, target_);
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

bool FileReplacement::swapIn() {
  if (!isGood_ || output_ || !files_.moveOver(fresh_, target_)) return false;
  isLeftBehind_ = false;
  files_.syncFolder(folderOf(target_));
  return true;
}

bool replaceFile(FileSystem& files, const fs::path& target, std::string_view content) {
  FileReplacement replacement(files, target);
  replacement.write(content);
  return replacement.finish() && replacement.swapIn();
}

void removeUnfinished(FileSystem& files, const fs::path& target) {
  const fs::path real = linkedFile(target);
  for (int number = 1; isThere(nameBeside(real, number)); ++number)
    if (!files.remove(nameBeside(real, number))) return;
}

}  // namespace odmiennik::dictionary
