// SPDX-License-Identifier: GPL-3.0-or-later
// A file of conjugations while it is written.
#pragma once

#include <memory>

#include "app/logic/saved_kinds.h"
#include "disk/replacement.h"
#include "formats/answer.h"

class QString;

namespace odmiennik::app {

// What is written of each verb; one class a kind of file.
class SavedContent {
 public:
  virtual ~SavedContent() = default;
  virtual void add(const formats::Answer& answer) = 0;
  // Behind the last verb.
  virtual void end() = 0;
};

// Written beside the file that it is to replace, and put in its place at the end: whole or not at
// all. Gone before that, it leaves nothing.
class SavedFile {
 public:
  // `title` is the document's, where the kind has one.
  SavedFile(disk::FileSystem& files, const SavedName& name, const QString& title);
  SavedFile(const SavedFile&) = delete;
  SavedFile& operator=(const SavedFile&) = delete;
  ~SavedFile();

  void add(const formats::Answer& answer) { content_->add(answer); }

  // Whether all could be written so far; it needs no further verb when not.
  [[nodiscard]] bool isGood() const { return file_.isGood(); }

  // True once the whole file is in its place.
  [[nodiscard]] bool finish();

 private:
  disk::FileReplacement file_;
  std::unique_ptr<SavedContent> content_;
};

}  // namespace odmiennik::app
