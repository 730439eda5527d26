// SPDX-License-Identifier: GPL-3.0-or-later
// Files of conjugations.
#include "app/exporting/saved_file.h"

#include <QString>

#include "app/exporting/pdf_pages.h"
#include "app/exporting/replacement_device.h"
#include "disk/names.h"
#include "formats/format.h"

namespace odmiennik::app {
namespace {

// deliberate: spreadsheets take the file for one in the system's old encoding without this mark.
constexpr Utf8View kByteOrderMark = "\uFEFF";

class TextContent final : public SavedContent {
 public:
  TextContent(disk::FileReplacement& file, std::unique_ptr<formats::Format> format, Utf8View start)
      : file_(file), format_(std::move(format)), text_(start) {
    format_->begin(text_);
  }
  void add(const formats::Answer& answer) override {
    format_->append(text_, answer);
    flush();
  }
  void end() override {
    format_->end(text_);
    flush();
  }

 private:
  void flush() {
    file_.write(bytesOf(text_));
    text_.clear();
  }

  disk::FileReplacement& file_;
  std::unique_ptr<formats::Format> format_;
  Utf8Text text_;
};

class PdfContent final : public SavedContent {
 public:
  PdfContent(disk::FileReplacement& file, const QString& title)
      : device_(file), pages_(device_, title) {}
  void add(const formats::Answer& answer) override { pages_.add(answer); }
  void end() override { pages_.end(); }

 private:
  ReplacementDevice device_;
  PdfPages pages_;
};

std::unique_ptr<SavedContent> contentOf(SavedKind kind, disk::FileReplacement& file,
                                        const QString& title) {
  switch (kind) {
    case SavedKind::pdf:
      return std::make_unique<PdfContent>(file, title);
    case SavedKind::html:
      return std::make_unique<TextContent>(file, formats::makeHtmlFormat(), Utf8View());
    case SavedKind::csv:
      return std::make_unique<TextContent>(file, formats::makeCsvFormat(), kByteOrderMark);
    case SavedKind::anki:
      break;
  }
  return std::make_unique<TextContent>(file, formats::makeAnkiFormat(), Utf8View());
}

std::optional<disk::ReplacedFile> targetOf(disk::FileSystem& files, const SavedName& name) {
  const std::filesystem::path path = disk::pathOf(name.path);
  return disk::fileToReplace(files, {files.presence(path), path});
}

}  // namespace

SavedFile::SavedFile(disk::FileSystem& files, const SavedName& name, const QString& title)
    : file_(files, targetOf(files, name)), content_(contentOf(name.kind, file_, title)) {}

SavedFile::~SavedFile() = default;

bool SavedFile::finish() {
  content_->end();
  return file_.finish() && file_.swapIn();
}

}  // namespace odmiennik::app
