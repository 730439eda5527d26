// SPDX-License-Identifier: GPL-3.0-or-later
// A file system of a fuzz target's own: files are texts in memory, and nothing ever fails.
#pragma once

#include <algorithm>
#include <cstring>
#include <map>
#include <string>
#include <utility>

#include "disk/file_system.h"

namespace odmiennik::testing {

class MemoryFiles final : public disk::FileSystem {
 public:
  using Path = std::filesystem::path;
  using Presence = disk::Presence;

  void put(const std::string& name, std::string content) {
    files_[name] = {std::move(content), ++changes_};
  }
  [[nodiscard]] std::string content(const std::string& name) const {
    const auto found = files_.find(name);
    return found == files_.end() ? std::string() : found->second.content;
  }
  [[nodiscard]] std::size_t count() const { return files_.size(); }

  Presence presence(const Path& name) override {
    return files_.contains(name.string()) ? Presence::there : Presence::notThere;
  }
  disk::FileLook look(const Path& file) override {
    const auto found = files_.find(file.string());
    if (found == files_.end()) return {Presence::notThere, {}};
    return {Presence::there, {1, found->second.number, found->second.content.size(), 0}};
  }
  std::optional<Path> realFile(const Path& file) override { return file; }
  std::optional<std::vector<Path>> names(const Path&) override {
    std::vector<Path> names;
    for (const auto& [name, file] : files_) names.emplace_back(name);
    return names;
  }
  std::unique_ptr<disk::FolderLock> lock(const Path&) override {
    return std::make_unique<disk::FolderLock>();
  }
  std::unique_ptr<disk::InputFile> open(const Path& file) override {
    const auto found = files_.find(file.string());
    return found == files_.end() ? nullptr : std::make_unique<Input>(found->second.content);
  }
  std::unique_ptr<disk::OutputFile> create(const Path& file, const Path&) override {
    if (files_.contains(file.string())) return nullptr;
    put(file.string(), {});
    return std::make_unique<Output>(files_[file.string()].content);
  }
  bool keepAs(const Path& file, const Path& secondName) override {
    return files_.try_emplace(secondName.string(), files_[file.string()]).second;
  }
  bool moveOver(const Path& file, const Path& target) override {
    files_[target.string()] = files_[file.string()];
    return remove(file);
  }
  bool moveToNew(const Path& file, const Path& target) override {
    return presence(target) == Presence::notThere && moveOver(file, target);
  }
  bool remove(const Path& file) override { return files_.erase(file.string()) == 1; }
  void syncFolder(const Path&) override {}

 private:
  struct File {
    std::string content;
    std::uint64_t number = 0;
  };

  class Input final : public disk::InputFile {
   public:
    explicit Input(std::string content) : content_(std::move(content)) {}
    std::ptrdiff_t read(char* buffer, std::size_t size) override {
      const std::size_t got = std::min(size, content_.size() - place_);
      std::memcpy(buffer, content_.data() + place_, got);
      place_ += got;
      return static_cast<std::ptrdiff_t>(got);
    }

   private:
    std::string content_;
    std::size_t place_ = 0;
  };

  class Output final : public disk::OutputFile {
   public:
    explicit Output(std::string& content) : content_(content) {}
    bool write(std::string_view bytes) override {
      content_.append(bytes);
      return true;
    }
    bool finish() override { return true; }

   private:
    std::string& content_;
  };

  std::map<std::string, File> files_;
  std::uint64_t changes_ = 0;
};

}  // namespace odmiennik::testing
