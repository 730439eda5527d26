// SPDX-License-Identifier: GPL-3.0-or-later
// Fuzz target: any bytes as a compiled help file: the check of it, and what is read of a file that
// passes.
#include <unistd.h>

#include <QFile>
#include <QString>
#include <cstdio>
#include <fstream>
#include <string>
#include <string_view>

#include "app/help/help_contents.h"
#include "app/help/help_file.h"
#include "app/help/help_file_check.h"
#include "tests/fuzz/fuzz_input.h"

namespace odmiennik::testing {
namespace {

// In memory where the system has such a folder.
const std::string& fileName() {
  static const std::string name = (::access("/dev/shm", W_OK) == 0 ? "/dev/shm/" : "/tmp/") +
                                  std::string("odmiennik-fuzz-") + std::to_string(::getpid()) +
                                  ".chm";
  return name;
}

struct RemovedAtEnd {
  ~RemovedAtEnd() { std::remove(fileName().c_str()); }
};

void readContents(const QByteArray& bytes) {
  constexpr std::size_t kMostEntries = 1000;
  constexpr int kDeepest = 8;
  const auto entries = app::readHelpContents(bytes);
  require(entries.size() <= kMostEntries, "the contents have an end");
  for (const app::HelpContentsEntry& entry : entries) {
    require(entry.level >= 1 && entry.level <= kDeepest, "a level is one of eight");
    require(!entry.title.isEmpty(), "an entry has a title");
  }
  require(app::fromWindows1250(bytes).size() == bytes.size(), "a byte is a letter");
}

void readFile(const std::string& bytes) {
  std::ofstream(fileName(), std::ios::binary) << bytes;
  const auto file = app::HelpFile::open(QString::fromStdString(fileName()));
  if (!file) return;
  require(app::hasSoundDirectory(bytes), "only a sound file is opened");
  for (const char* name : {"/default.hhc", "/strony/default.htm", "/#SYSTEM", "/odmiennik.hhc"})
    if (const auto content = file->content(QLatin1String(name))) readContents(*content);
}

}  // namespace
}  // namespace odmiennik::testing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace odmiennik::testing;
  static const RemovedAtEnd removedAtEnd;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const std::string_view view = bytes;
  static_cast<void>(odmiennik::app::canBeUnpacked(view.substr(0, size / 2), view.substr(size / 2)));
  readContents(QByteArray::fromStdString(bytes));
  readFile(bytes);
  return 0;
}
