// SPDX-License-Identifier: GPL-3.0-or-later
// A program folder made for one test.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

#include "tests/support/scratch_folder.h"

namespace odmiennik::end_to_end {

class VerbFolder {
 public:
  [[nodiscard]] std::string path() const { return folder_.path().string(); }
  [[nodiscard]] std::filesystem::path file(const std::string& name) const {
    return folder_.path() / name;
  }

  void write(const std::string& name, const std::string& bytes) const;
  // A settings file that counts `count` verbs.
  void writeCount(int count) const;

  // Every file with its content and the time of its last change, to be compared.
  [[nodiscard]] std::map<std::string, std::string> contents() const;

 private:
  scratch::ScratchFolder folder_;
};

// A line of the user's verbs: slot i holds `infinitive` and i but for slot 96, the infinitive
// itself.
[[nodiscard]] std::string record(const std::string& infinitive, int auxiliary);

}  // namespace odmiennik::end_to_end
