// Failing on purpose.
#include "tests/unit/dictionary/faulty_files.h"

#include <algorithm>

namespace odmiennik::testing {
namespace {

namespace fs = std::filesystem;

class FaultyInput final : public dictionary::InputFile {
 public:
  FaultyInput(std::unique_ptr<dictionary::InputFile> file, std::size_t readable)
      : file_(std::move(file)), readable_(readable) {}

  std::ptrdiff_t read(char* buffer, std::size_t size) override {
    if (readable_ == 0) return -1;
    const std::ptrdiff_t got = file_->read(buffer, std::min(size, readable_));
    readable_ -= static_cast<std::size_t>(got);
    return got;
  }

 private:
  std::unique_ptr<dictionary::InputFile> file_;
  std::size_t readable_;
};

class FaultyOutput final : public dictionary::OutputFile {
 public:
  FaultyOutput(FaultyFiles& files, std::unique_ptr<dictionary::OutputFile> file)
      : files_(files), file_(std::move(file)) {}

  bool write(std::string_view bytes) override {
    const bool isWhole = files_.takeStep("write");
    return file_->write(isWhole ? bytes : bytes.substr(0, bytes.size() / 2)) && isWhole;
  }
  bool finish() override { return files_.takeStep("finish") && file_->finish(); }

 private:
  FaultyFiles& files_;
  std::unique_ptr<dictionary::OutputFile> file_;
};

}  // namespace

bool FaultyFiles::takeStep(const char* name) {
  const bool isFirstFailure = steps_ == 0;
  if (steps_ >= 0) --steps_;
  if (isFirstFailure || (hasFailed() && afterwards_ == Afterwards::allFails)) return false;
  taken_.emplace_back(name);
  return true;
}

std::unique_ptr<dictionary::InputFile> FaultyFiles::open(const fs::path& file) {
  return std::make_unique<FaultyInput>(dictionary::systemFiles().open(file), readable_);
}

std::unique_ptr<dictionary::OutputFile> FaultyFiles::create(const fs::path& file,
                                                            const fs::path& replaced) {
  if (!takeStep("create")) return nullptr;
  return std::make_unique<FaultyOutput>(*this, dictionary::systemFiles().create(file, replaced));
}

bool FaultyFiles::keepAs(const fs::path& file, const fs::path& secondName) {
  return takeStep("keepAs") && dictionary::systemFiles().keepAs(file, secondName);
}

bool FaultyFiles::moveOver(const fs::path& file, const fs::path& target) {
  return takeStep("moveOver") && dictionary::systemFiles().moveOver(file, target);
}

bool FaultyFiles::remove(const fs::path& file) {
  return takeStep("remove") && dictionary::systemFiles().remove(file);
}

void FaultyFiles::syncFolder(const fs::path& folder) {
  if (takeStep("syncFolder")) dictionary::systemFiles().syncFolder(folder);
}

}  // namespace odmiennik::testing
