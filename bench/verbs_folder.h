// SPDX-License-Identifier: GPL-3.0-or-later
// A folder with verbs of the user's own, 10,000 of them about 15 MB.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>

#include "dictionary/user_verbs.h"
#include "disk/program_folder.h"

namespace odmiennik::dictionary {

namespace fs = std::filesystem;

// A folder with a user-verbs file, removed when the benchmark is over.
class VerbsFolder {
 public:
  static constexpr int kVerbCount = 10'000;

  explicit VerbsFolder(int count = kVerbCount)
      : folder_(fs::temp_directory_path() / "odmiennik-user-verbs-bench") {
    fs::create_directory(folder_);
    std::ofstream file(folder_ / "Czasowniki.dat", std::ios::binary);
    for (int number = 0; number < count; ++number) file << recordLine(record(number));
  }
  VerbsFolder(const VerbsFolder&) = delete;
  VerbsFolder& operator=(const VerbsFolder&) = delete;
  ~VerbsFolder() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
  }

  [[nodiscard]] Utf8Text prefix() const { return disk::AppFolder(asUtf8(folder_.string())); }
  static std::string infinitive(int number) { return "conjuguer" + std::to_string(number); }

 private:
  static UserVerbRecord record(int number) {
    UserVerbRecord record;
    for (int slot = 0; slot < engine::kSlotCount; ++slot)
      record.forms[slot] = "forme" + std::to_string(number) + std::string(slot % 10, 's');
    record.forms[engine::slot::kInfinitive] = infinitive(number);
    return record;
  }

  fs::path folder_;
};

struct NoMessages final : MessageBoxes {
  Button show(MessageId, Utf8View) override { return Button::ok; }
};

}  // namespace odmiennik::dictionary
