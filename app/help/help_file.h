// SPDX-License-Identifier: GPL-3.0-or-later
// A compiled help file, read with libchm.
#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <optional>

struct chmFile;

namespace odmiennik::app {

class HelpFile {
 public:
  // Opens a file; nothing when it is no help file or is damaged. A file that was made to do harm is
  // taken for a damaged one.
  [[nodiscard]] static std::optional<HelpFile> open(const QString& path);

  // What stands under a path, "/strony/default.htm"; nothing when there is nothing, it is too long
  // for a page, or it cannot be unpacked. ASCII letters may be of either case.
  [[nodiscard]] std::optional<QByteArray> content(const QString& path) const;

 private:
  struct Close {
    void operator()(chmFile* file) const;
  };
  explicit HelpFile(chmFile* file) : file_(file) {}
  [[nodiscard]] bool isReadable() const;

  std::unique_ptr<chmFile, Close> file_;
};

}  // namespace odmiennik::app
