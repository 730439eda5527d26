// SPDX-License-Identifier: GPL-3.0-or-later
// A program folder made for one test.
#include "verb_folder.h"

#include <fstream>
#include <iterator>

#include "shown.h"

namespace odmiennik::end_to_end {

namespace fs = std::filesystem;

void VerbFolder::write(const std::string& name, const std::string& bytes) const {
  std::ofstream(file(name), std::ios::binary) << bytes;
}

void VerbFolder::writeCount(int count) const {
  write("Werbolin.cfg", std::to_string(count) + "\r\n0\r\n0\r\n0\r\n10\r\n");
}

std::map<std::string, std::string> VerbFolder::contents() const {
  std::map<std::string, std::string> contents;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder_.path())) {
    std::ifstream stream(entry.path(), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    contents[entry.path().string()] =
        std::to_string(entry.last_write_time().time_since_epoch().count()) + "\n" + bytes;
  }
  return contents;
}

std::string record(const std::string& infinitive, int auxiliary) {
  std::string line;
  for (int slot = 0; slot < kBoxes; ++slot)
    line += (slot == kInfinitive ? infinitive : infinitive + std::to_string(slot)) + ",";
  return line + " " + std::to_string(auxiliary) + "\r\n";
}

}  // namespace odmiennik::end_to_end
