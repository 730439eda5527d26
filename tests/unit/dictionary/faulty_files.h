// A file system whose power fails, or whose disk is full, after a number of steps.
#pragma once

#include <string>
#include <vector>

#include "dictionary/file_system.h"

namespace odmiennik::testing {

// What comes after the operation that fails.
enum class Afterwards {
  allFails,     // the power is off
  allSucceeds,  // there is room on the disk again
};

// Carries out `steps` changing operations; the next one fails. A write that fails is carried out by
// half, as on a disk that fills up.
class FaultyFiles final : public dictionary::FileSystem {
 public:
  explicit FaultyFiles(int steps, Afterwards afterwards = Afterwards::allFails)
      : steps_(steps), afterwards_(afterwards) {}

  [[nodiscard]] bool hasFailed() const { return steps_ < 0; }

  // From now on a file can be read no further than `bytes`.
  void failReadingAfter(std::size_t bytes) { readable_ = bytes; }

  std::unique_ptr<dictionary::InputFile> open(const std::filesystem::path& file) override;
  std::unique_ptr<dictionary::OutputFile> create(const std::filesystem::path& file,
                                                 const std::filesystem::path& replaced) override;
  bool keepAs(const std::filesystem::path& file, const std::filesystem::path& secondName) override;
  bool moveOver(const std::filesystem::path& file, const std::filesystem::path& target) override;
  bool remove(const std::filesystem::path& file) override;
  void syncFolder(const std::filesystem::path& folder) override;

  // Whether one more step may be taken; its name is remembered.
  bool takeStep(const char* name);

  [[nodiscard]] const std::vector<std::string>& taken() const { return taken_; }

 private:
  int steps_;
  Afterwards afterwards_;
  std::size_t readable_ = static_cast<std::size_t>(-1);
  std::vector<std::string> taken_;
};

}  // namespace odmiennik::testing
