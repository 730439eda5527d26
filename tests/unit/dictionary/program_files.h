// SPDX-License-Identifier: GPL-3.0-or-later
// A program folder of a test's own, and what it takes to fill it.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "dictionary/messages.h"
#include "dictionary/user_record.h"
#include "engine/utf8.h"
#include "tests/support/scratch_folder.h"

namespace odmiennik::testing {

// What is said of a file of verbs that could not be written, or read.
inline constexpr const char* kNotSaved = "Nie można zapisać pliku czasowników użytkownika.";
inline constexpr const char* kUnreadable = "Nie można odczytać pliku czasowników użytkownika.";

class ProgramFolder : public scratch::ScratchFolder {
 public:
  [[nodiscard]] Utf8Text prefix() const;

  void write(Utf8View name, std::string_view content) const;
  [[nodiscard]] std::string read(Utf8View name) const;
  [[nodiscard]] bool has(Utf8View name) const;
  // The names in the folder, sorted, UTF-8.
  [[nodiscard]] std::vector<std::string> names() const;
};

// Message boxes that are remembered and answered with their default button.
class RecordedMessages final : public dictionary::MessageBoxes {
 public:
  dictionary::Button show(dictionary::MessageId id, Utf8View argument) override;
  std::vector<std::string> texts;
};

// A record with an infinitive and some other forms (UTF-8), as the window would save it.
[[nodiscard]] dictionary::UserVerbRecord verb(std::string_view infinitive,
                                              const std::map<int, std::string_view>& forms = {});

// Its line in the writer's format.
[[nodiscard]] std::string lineOf(std::string_view infinitive,
                                 const std::map<int, std::string_view>& forms = {});

// The lines of several verbs.
[[nodiscard]] std::string linesOf(const std::vector<std::string_view>& infinitives);

}  // namespace odmiennik::testing
