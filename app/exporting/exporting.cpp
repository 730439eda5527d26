// SPDX-License-Identifier: GPL-3.0-or-later
// Saving and copying of conjugations.
#include "app/exporting/exporting.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMenuBar>
#include <QScopedValueRollback>

#include "app/common/announcement.h"
#include "app/common/text.h"
#include "app/controls/main_menu.h"
#include "app/exporting/copied_conjugation.h"
#include "app/exporting/saving_window.h"
#include "app/exporting/shown_answer.h"
#include "app/main_window/main_window.h"

namespace odmiennik::app {

using dictionary::Button;
using dictionary::MessageId;

Exporting::Exporting(MainWindow& main, engine::Driver& driver, dictionary::MessageBoxes& messages,
                     disk::FileSystem& files)
    : main_(main), driver_(driver), messages_(messages), files_(files), question_(files, messages) {
  connect(&main_, &MainWindow::shownChanged, this, &Exporting::offer);
  offer();
}

void Exporting::offer() {
  for (const MenuItemName name :
       {MenuItemName("mnuPlikZapiszOdmianę"), MenuItemName("mnuEdycjaKopiujOdmianę")})
    menuItem(*main_.menuBar(), name).setEnabled(main_.showsVerb());
}

// Of a new verb there is none at first.
bool Exporting::hasInfinitive(const ShownAnswer& shown) {
  if (!shown.infinitive().empty()) return true;
  messages_.show(MessageId::infinitiveNeeded);
  return false;
}

// The forms are taken before the dialog opens: another window may show another verb meanwhile.
bool Exporting::save() {
  if (isAsking_ || !main_.showsVerb()) return false;
  const QScopedValueRollback<bool> asking(isAsking_, true);
  const ShownAnswer shown(main_);
  if (!hasInfinitive(shown)) return false;
  const auto name =
      question_.ask(main_, QStringLiteral("Zapisz odmianę jako"), fileNameFor(shown.infinitive()));
  if (!name) return false;
  SavedFile file(files_, *name, fromUtf8(shown.infinitive()));
  file.add(shown.answer());
  const bool isSaved = file.finish();
  tell(isSaved, *name);
  return isSaved;
}

void Exporting::copy() {
  if (isAsking_ || !main_.showsVerb()) return;
  const ShownAnswer shown(main_);
  if (!hasInfinitive(shown)) return;
  QGuiApplication::clipboard()->setMimeData(copyOf(shown.answer()).release());
  announce(QStringLiteral("Skopiowano odmianę czasownika %1.").arg(fromUtf8(shown.infinitive())));
}

void Exporting::tell(bool isSaved, const SavedName& name) {
  const Utf8Text file = shownName(name.path);
  if (isSaved)
    announce(QStringLiteral("Zapisano plik %1.").arg(fromUtf8(file)));
  else
    messages_.show(MessageId::fileNotSaved, file);
}

void Exporting::saveList(QWidget& parent, SavedList list) {
  if (isAsking_ || saving_) return;
  const QScopedValueRollback<bool> asking(isAsking_, true);
  auto meant = meantBy(std::move(list));
  if (!meant) return;
  const auto name =
      question_.ask(parent, QStringLiteral("Zapisz listę jako"), fileNameFor(meant->name));
  if (name) openSavingWindow(parent, *std::move(meant), *name);
}

std::optional<SavedList> Exporting::meantBy(SavedList list) {
  if (list.letter.empty()) return list;
  switch (messages_.show(MessageId::saveWholeIndex, list.letter)) {
    case Button::yes:
      return wholeIndex();
    case Button::no:
      return list;
    default:
      return std::nullopt;
  }
}

// What became of it is told once the window has gone.
void Exporting::openSavingWindow(QWidget& parent, SavedList list, const SavedName& name) {
  auto saver = std::make_unique<ListSaver>(driver_, main_.conjugation().variety, files_, name,
                                           std::move(list));
  saving_ = new SavingWindow(std::move(saver), fromUtf8(shownName(name.path)), &parent);
  connect(
      saving_, &SavingWindow::ended, this, [this, name](bool isSaved) { tell(isSaved, name); },
      Qt::QueuedConnection);
  saving_->show();
}

}  // namespace odmiennik::app
