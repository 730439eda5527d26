// SPDX-License-Identifier: GPL-3.0-or-later
// A file system whose power fails, or whose disk is full, after a number of steps.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "disk/file_system.h"

namespace odmiennik::testing {

// What comes after the operation that fails.
enum class Afterwards {
  allFails,     // the power is off
  allSucceeds,  // there is room on the disk again
};

// Carries out `steps` changing operations; the next one fails. A write that fails is carried out by
// half, as on a disk that fills up.
class FaultyFiles final : public disk::FileSystem {
 public:
  explicit FaultyFiles(int steps, Afterwards afterwards = Afterwards::allFails)
      : steps_(steps), afterwards_(afterwards) {}

  [[nodiscard]] bool hasFailed() const { return steps_ < 0; }

  // From now on a file can be read no further than `bytes`.
  void failReadingAfter(std::size_t bytes) { readable_ = bytes; }

  // The next questions of a kind get no answer, as on a network folder that is slow for a moment:
  // "presence", "look", "realFile", "names", "lock".
  void leaveUnanswered(const std::string& question, int times) { unanswered_[question] = times; }

  // What stands between the program and every file it reads from now on.
  using Wrap = std::function<std::unique_ptr<disk::InputFile>(std::unique_ptr<disk::InputFile>)>;
  void wrapInputs(Wrap wrap) { wrap_ = std::move(wrap); }

  // Called before the next file is moved into its place, as another program would act just then.
  void beforeMoving(std::function<void()> act) { beforeMoving_ = std::move(act); }

  disk::Presence presence(const std::filesystem::path& name) override;
  disk::FileLook look(const std::filesystem::path& file) override;
  std::optional<std::filesystem::path> realFile(const std::filesystem::path& file) override;
  std::optional<std::vector<std::filesystem::path>> names(
      const std::filesystem::path& folder) override;
  std::unique_ptr<disk::FolderLock> lock(const std::filesystem::path& folder) override;
  std::unique_ptr<disk::InputFile> open(const std::filesystem::path& file) override;
  std::unique_ptr<disk::OutputFile> create(const std::filesystem::path& file,
                                           const std::filesystem::path& replaced) override;
  bool keepAs(const std::filesystem::path& file, const std::filesystem::path& secondName) override;
  bool moveOver(const std::filesystem::path& file, const std::filesystem::path& target) override;
  bool moveToNew(const std::filesystem::path& file, const std::filesystem::path& target) override;
  bool remove(const std::filesystem::path& file) override;
  void syncFolder(const std::filesystem::path& folder) override;

  // Whether one more step may be taken; its name is remembered.
  bool takeStep(const char* name);

  [[nodiscard]] const std::vector<std::string>& taken() const { return taken_; }

 private:
  [[nodiscard]] bool isAnswered(const char* question);
  void act();

  int steps_;
  std::map<std::string, int> unanswered_;
  std::function<void()> beforeMoving_;
  Wrap wrap_;
  Afterwards afterwards_;
  std::size_t readable_ = static_cast<std::size_t>(-1);
  std::vector<std::string> taken_;
};

}  // namespace odmiennik::testing
