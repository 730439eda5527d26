// SPDX-License-Identifier: GPL-3.0-or-later
// The file dialog.
#include "app/exporting/file_question.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QStandardPaths>
#include <algorithm>

#include "app/common/text.h"
#include "app/layout/screen_room.h"
#include "dictionary/printable.h"
#include "disk/names.h"

namespace odmiennik::app {
namespace {

QString firstFolder() {
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

SavedKind kindOf(const QString& filter) {
  const auto isChosen = [&](const SavedKindRow& row) {
    return fromUtf8(filterOf(row.kind)) == filter;
  };
  const auto* row = std::ranges::find_if(kSavedKinds, isChosen);
  return row == kSavedKinds.end() ? SavedKind::pdf : row->kind;
}

QString nameOf(const QString& path, SavedKind kind) {
  const Utf8Text typed = toUtf8(path);
  return fromUtf8(savedName(withoutSuffix(typed), kind).path);
}

// The name follows the kind: "finir.pdf" becomes "finir.csv".
void followKind(QFileDialog& dialog, const QString& filter) {
  const SavedKind kind = kindOf(filter);
  dialog.setDefaultSuffix(fromUtf8(rowOf(kind).suffix));
  const QStringList chosen = dialog.selectedFiles();
  if (!chosen.isEmpty() && !QFileInfo(chosen.constFirst()).isDir())
    dialog.selectFile(nameOf(chosen.constFirst(), kind));
}

void furnish(QFileDialog& dialog, SavedKind kind) {
  dialog.setObjectName(QStringLiteral("dlgZapiszJako"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setLabelText(QFileDialog::Accept, QStringLiteral("&Zapisz"));
  QStringList filters;
  for (const SavedKindRow& row : kSavedKinds) filters += fromUtf8(filterOf(row.kind));
  dialog.setNameFilters(filters);
  dialog.selectNameFilter(fromUtf8(filterOf(kind)));
  dialog.setDefaultSuffix(fromUtf8(rowOf(kind).suffix));
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                   [&dialog](const QString& filter) { followKind(dialog, filter); });
}

}  // namespace

FileQuestion::FileQuestion(disk::FileSystem& files, dictionary::MessageBoxes& messages)
    : files_(files), messages_(messages) {}

std::optional<SavedName> FileQuestion::ask(QWidget& parent, const QString& title,
                                           const Utf8Text& name) {
  if (folder_.isEmpty()) folder_ = firstFolder();
  const QString proposed =
      QStringLiteral("%1.%2").arg(fromUtf8(name), fromUtf8(rowOf(kind_).suffix));
  QString path = QDir(folder_).filePath(proposed);
  while (const auto chosen = show(parent, title, path)) {
    SavedName meant = savedName(toUtf8(chosen->path), chosen->kind);
    const bool isAsked = fromUtf8(meant.path) == chosen->path;
    path = fromUtf8(meant.path);
    folder_ = QFileInfo(path).absolutePath();
    kind_ = meant.kind;
    if (isAsked || mayBeReplaced(meant.path)) return meant;
  }
  return std::nullopt;
}

// Not on the stack: the window that it stands over would delete it if it went.
std::optional<FileQuestion::Chosen> FileQuestion::show(QWidget& parent, const QString& title,
                                                       const QString& path) {
  const QPointer<QFileDialog> dialog = new QFileDialog(&parent, title, folder_);
  furnish(*dialog, kind_);
  dialog->selectFile(path);
  drawTogether(*dialog);
  dialog->resize(dialog->sizeHint().boundedTo(screenRoom(*dialog)));
  const bool isAccepted = dialog->exec() == QDialog::Accepted;
  if (!dialog) return std::nullopt;
  const QStringList files = dialog->selectedFiles();
  const SavedKind kind = kindOf(dialog->selectedNameFilter());
  delete dialog;
  if (!isAccepted || files.isEmpty()) return std::nullopt;
  return Chosen{files.constFirst(), kind};
}

bool FileQuestion::mayBeReplaced(const Utf8Text& path) {
  if (files_.presence(disk::pathOf(path)) == disk::Presence::notThere) return true;
  return messages_.show(dictionary::MessageId::replaceFile, shownName(path)) ==
         dictionary::Button::yes;
}

Utf8Text shownName(const Utf8Text& path) {
  return dictionary::printable(toUtf8(QFileInfo(fromUtf8(path)).fileName()));
}

}  // namespace odmiennik::app
