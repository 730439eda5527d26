// SPDX-License-Identifier: GPL-3.0-or-later
// Failing on purpose.
#include "tests/unit/dictionary/faulty_files.h"

#include <algorithm>
#include <utility>

namespace odmiennik::testing {
namespace {

namespace fs = std::filesystem;

class FaultyInput final : public disk::InputFile {
 public:
  FaultyInput(std::unique_ptr<disk::InputFile> file, std::size_t readable)
      : file_(std::move(file)), readable_(readable) {}

  std::ptrdiff_t read(char* buffer, std::size_t size) override {
    if (readable_ == 0) return -1;
    const std::ptrdiff_t got = file_->read(buffer, std::min(size, readable_));
    readable_ -= static_cast<std::size_t>(got);
    return got;
  }

 private:
  std::unique_ptr<disk::InputFile> file_;
  std::size_t readable_;
};

class FaultyOutput final : public disk::OutputFile {
 public:
  FaultyOutput(FaultyFiles& files, std::unique_ptr<disk::OutputFile> file)
      : files_(files), file_(std::move(file)) {}

  bool write(std::string_view bytes) override {
    const bool isWhole = files_.takeStep("write");
    return file_->write(isWhole ? bytes : bytes.substr(0, bytes.size() / 2)) && isWhole;
  }
  bool finish() override { return files_.takeStep("finish") && file_->finish(); }

 private:
  FaultyFiles& files_;
  std::unique_ptr<disk::OutputFile> file_;
};

}  // namespace

bool FaultyFiles::takeStep(const char* name) {
  const bool isFirstFailure = steps_ == 0;
  if (steps_ >= 0) --steps_;
  if (isFirstFailure || (hasFailed() && afterwards_ == Afterwards::allFails)) return false;
  taken_.emplace_back(name);
  return true;
}

bool FaultyFiles::isAnswered(const char* question) {
  const auto found = unanswered_.find(question);
  if (found == unanswered_.end() || found->second == 0) return true;
  --found->second;
  return false;
}

disk::Presence FaultyFiles::presence(const fs::path& name) {
  return isAnswered("presence") ? disk::systemFiles().presence(name) : disk::Presence::unknown;
}

disk::FileLook FaultyFiles::look(const fs::path& file) {
  return isAnswered("look") ? disk::systemFiles().look(file) : disk::FileLook{};
}

std::optional<fs::path> FaultyFiles::realFile(const fs::path& file) {
  return isAnswered("realFile") ? disk::systemFiles().realFile(file) : std::nullopt;
}

std::optional<std::vector<fs::path>> FaultyFiles::names(const fs::path& folder) {
  return isAnswered("names") ? disk::systemFiles().names(folder) : std::nullopt;
}

std::unique_ptr<disk::FolderLock> FaultyFiles::lock(const fs::path& folder) {
  return isAnswered("lock") ? disk::systemFiles().lock(folder) : nullptr;
}

void FaultyFiles::act() {
  if (beforeMoving_) std::exchange(beforeMoving_, nullptr)();
}

std::unique_ptr<disk::InputFile> FaultyFiles::open(const fs::path& file) {
  auto opened = disk::systemFiles().open(file);
  if (!opened) return nullptr;
  auto input = std::make_unique<FaultyInput>(std::move(opened), readable_);
  return wrap_ ? wrap_(std::move(input)) : std::move(input);
}

std::unique_ptr<disk::OutputFile> FaultyFiles::create(const fs::path& file,
                                                      const fs::path& replaced) {
  if (!takeStep("create")) return nullptr;
  return std::make_unique<FaultyOutput>(*this, disk::systemFiles().create(file, replaced));
}

bool FaultyFiles::keepAs(const fs::path& file, const fs::path& secondName) {
  return takeStep("keepAs") && disk::systemFiles().keepAs(file, secondName);
}

bool FaultyFiles::moveOver(const fs::path& file, const fs::path& target) {
  act();
  return takeStep("moveOver") && disk::systemFiles().moveOver(file, target);
}

bool FaultyFiles::moveToNew(const fs::path& file, const fs::path& target) {
  act();
  return takeStep("moveToNew") && disk::systemFiles().moveToNew(file, target);
}

bool FaultyFiles::remove(const fs::path& file) {
  return takeStep("remove") && disk::systemFiles().remove(file);
}

void FaultyFiles::syncFolder(const fs::path& folder) {
  if (takeStep("syncFolder")) disk::systemFiles().syncFolder(folder);
}

}  // namespace odmiennik::testing
