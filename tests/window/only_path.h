// SPDX-License-Identifier: GPL-3.0-or-later
// A search path of one folder, and programs in it that write down that they were started.
#pragma once

#include <QByteArray>
#include <filesystem>
#include <fstream>
#include <string>

#include "tests/support/scratch_folder.h"

namespace odmiennik::window_test {

// While it lives, programs are found in its folder alone.
class OnlyPath {
 public:
  OnlyPath() : before_(qgetenv("PATH")) {
    qputenv("PATH", QByteArray::fromStdString(folder_.path().string()));
  }
  OnlyPath(const OnlyPath&) = delete;
  OnlyPath& operator=(const OnlyPath&) = delete;
  ~OnlyPath() { qputenv("PATH", before_); }

  void addProgram(const std::string& name) const {
    const std::filesystem::path program = folder_.path() / name;
    std::ofstream(program) << "#!/bin/sh\n: > '" << mark(name).string() << "'\n";
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
  }

  [[nodiscard]] bool hasStarted(const std::string& name) const {
    return std::filesystem::exists(mark(name));
  }

 private:
  [[nodiscard]] std::filesystem::path mark(const std::string& name) const {
    return folder_.path() / (name + " was started");
  }

  scratch::ScratchFolder folder_;
  QByteArray before_;
};

}  // namespace odmiennik::window_test
