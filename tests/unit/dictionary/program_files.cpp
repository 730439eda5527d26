// SPDX-License-Identifier: GPL-3.0-or-later
// Test folders and records.
#include "tests/unit/dictionary/program_files.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "disk/names.h"
#include "disk/program_folder.h"
#include "tests/support/test_program.h"

namespace odmiennik::testing {

namespace fs = std::filesystem;

Utf8Text ProgramFolder::prefix() const { return disk::AppFolder(asUtf8(path().string())); }

void ProgramFolder::write(Utf8View name, std::string_view content) const {
  std::ofstream file(path() / disk::pathOf(name), std::ios::binary);
  file << content;
  if (!file.flush()) throw std::runtime_error("a test file cannot be written");
}

std::string ProgramFolder::read(Utf8View name) const {
  std::ifstream file(path() / disk::pathOf(name), std::ios::binary);
  if (!file) throw std::runtime_error("no such test file: " + std::string(bytesOf(name)));
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

bool ProgramFolder::has(Utf8View name) const { return fs::exists(path() / disk::pathOf(name)); }

std::vector<std::string> ProgramFolder::names() const {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(path())) {
    const std::u8string name = entry.path().filename().u8string();
    names.emplace_back(name.begin(), name.end());
  }
  std::ranges::sort(names);
  return names;
}

dictionary::Button RecordedMessages::show(dictionary::MessageId id, Utf8View argument) {
  texts.emplace_back(bytesOf(dictionary::messageText(id, argument)));
  return dictionary::row(id).defaultButton;
}

dictionary::UserVerbRecord verb(std::string_view infinitive,
                                const std::map<int, std::string_view>& forms) {
  dictionary::UserVerbRecord record;
  record.forms[engine::slot::kInfinitive] = french(infinitive);
  for (const auto& [slot, form] : forms) record.forms[slot] = french(form);
  return record;
}

std::string lineOf(std::string_view infinitive, const std::map<int, std::string_view>& forms) {
  return dictionary::recordLine(verb(infinitive, forms));
}

std::string linesOf(const std::vector<std::string_view>& infinitives) {
  std::string lines;
  for (const std::string_view infinitive : infinitives) lines += lineOf(infinitive);
  return lines;
}

}  // namespace odmiennik::testing
