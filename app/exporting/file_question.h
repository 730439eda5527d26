// SPDX-License-Identifier: GPL-3.0-or-later
// The question where conjugations are to be saved, and as what.
#pragma once

#include <QString>
#include <optional>

#include "app/logic/saved_kinds.h"
#include "dictionary/messages.h"
#include "disk/file_system.h"

class QWidget;

namespace odmiennik::app {

// Remembers folder and kind until the program ends.
class FileQuestion {
 public:
  FileQuestion(disk::FileSystem& files, dictionary::MessageBoxes& messages);

  // Asks over `parent`, in the system's own dialog where there is one; `name` is what is proposed,
  // without a suffix. Nothing when the user gives up. Whatever file is named afterwards may be
  // replaced: the dialog has asked, or this has, about a name that was completed behind it.
  [[nodiscard]] std::optional<SavedName> ask(QWidget& parent, const QString& title,
                                             const Utf8Text& name);

 private:
  // What was chosen in the dialog, word for word.
  struct Chosen {
    QString path;
    SavedKind kind;
  };
  [[nodiscard]] std::optional<Chosen> show(QWidget& parent, const QString& title,
                                           const QString& path);
  [[nodiscard]] bool mayBeReplaced(const Utf8Text& path);

  disk::FileSystem& files_;
  dictionary::MessageBoxes& messages_;
  QString folder_;
  SavedKind kind_ = SavedKind::pdf;
};

// The name alone of a file, to be shown: "/home/ala/finir.pdf" -> "finir.pdf".
[[nodiscard]] Utf8Text shownName(const Utf8Text& path);

}  // namespace odmiennik::app
