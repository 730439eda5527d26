// SPDX-License-Identifier: GPL-3.0-or-later
// A compiled help file opened with libchm.
#pragma once

#include <chm_lib.h>

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>

namespace odmiennik::help {

class HelpFile {
 public:
  explicit HelpFile(const char* path) : file_(chm_open(path)) {
    if (file_ == nullptr) throw std::runtime_error(std::string(path) + ": no help file");
  }
  HelpFile(const HelpFile&) = delete;
  HelpFile& operator=(const HelpFile&) = delete;
  ~HelpFile() { chm_close(file_); }

  // The content of "/strony/default.htm" (path in UTF-8), or nothing when there is none.
  [[nodiscard]] std::optional<std::string> content(const std::string& path) const {
    chmUnitInfo unit{};
    if (chm_resolve_object(file_, path.c_str(), &unit) != CHM_RESOLVE_SUCCESS) return std::nullopt;
    std::string text(unit.length, '\0');
    const auto length = static_cast<std::int64_t>(unit.length);
    auto* bytes = reinterpret_cast<unsigned char*>(text.data());
    if (chm_retrieve_object(file_, &unit, bytes, 0, length) != length) return std::nullopt;
    return text;
  }

 private:
  chmFile* file_;
};

}  // namespace odmiennik::help
