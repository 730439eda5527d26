// SPDX-License-Identifier: GPL-3.0-or-later
// Fuzz target: any bytes as the settings file; what is read, written and read again is the same.
#include "disk/settings.h"

#include <string>
#include <string_view>

#include "tests/fuzz/fuzz_input.h"
#include "tests/fuzz/memory_files.h"

namespace odmiennik::testing {
namespace {

bool areSame(const disk::Settings& one, const disk::Settings& other) {
  return one.userVerbCount == other.userVerbCount && one.moodColour == other.moodColour &&
         one.tenseColour == other.tenseColour && one.conjugationCount == other.conjugationCount &&
         one.runCount == other.runCount;
}

void readWriteRead(std::string_view text) {
  disk::Settings read, again;
  const bool isRead = disk::parseSettings(text, read);
  const std::string written = disk::settingsText(read);
  require(disk::parseSettings(written, again), "what is written can be read");
  require(areSame(read, again), "what is written is what was read");
  require(disk::settingsText(again) == written, "what was written once is written the same again");
  if (text == written) require(isRead, "the program's own file is sound");
}

void throughFiles(const std::string& text) {
  MemoryFiles files;
  files.put("Werbolin.cfg", text);
  disk::Settings read, again;
  const disk::SettingsRead result = disk::readSettingsFile("", read, files);
  require(result == disk::SettingsRead::read || result == disk::SettingsRead::damaged,
          "the file is there");
  require(disk::writeSettingsFile("", read, files), "settings can be written");
  require(disk::readSettingsFile("", again, files) == disk::SettingsRead::read, "and read again");
  require(areSame(read, again), "what is in the file is what was read");
  require(files.count() == 1, "nothing is left beside the file");
}

// The fifth line alone: every number there is comes back.
void encodeAndDecode(std::string_view bytes) {
  std::uint32_t number = 0;
  for (const char byte : bytes.substr(0, 4))
    number = number << 8 | static_cast<unsigned char>(byte);
  const auto runCount = static_cast<std::int32_t>(number);
  disk::Settings read;
  require(disk::parseSettings("0\n0\n0\n0\n" + disk::encodeRunCount(runCount), read),
          "a run count is read");
  require(read.runCount == runCount, "a run count is what it was");
}

}  // namespace
}  // namespace odmiennik::testing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace odmiennik::testing;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  readWriteRead(bytes);
  readWriteRead("1\r\n2\r\n3\r\n4\r\n" + bytes);
  throughFiles(bytes);
  encodeAndDecode(bytes);
  return 0;
}
