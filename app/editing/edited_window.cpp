// SPDX-License-Identifier: GPL-3.0-or-later
// The main window as edit mode sees it.
#include "app/editing/edited_window.h"

#include "app/common/announcement.h"
#include "app/common/text.h"
#include "app/controls/main_menu.h"
#include "app/logic/saving.h"
#include "app/main_window/main_window.h"
#include "app/main_window/window_pointer.h"

namespace odmiennik::app {
namespace {

// The first of an item's keys stands in the menu: while a verb is edited it tells the way out.
void offerEscape(QAction& item, bool isOffered) {
  QList<QKeySequence> keys = item.shortcuts();
  keys.removeAll(Qt::Key_Escape);
  if (isOffered) keys.prepend(Qt::Key_Escape);
  item.setShortcuts(keys);
}

}  // namespace

EditedWindow::EditedWindow(MainWindow& window, WindowPointer& pointer,
                           dictionary::UserVerbsFile& userVerbs)
    : window_(window), pointer_(pointer), userVerbs_(userVerbs) {
  QAction& edit = item("mnuEdycjaEdytujCzasownik");
  edit.setProperty(kTagProperty, QString());
  edit.setAutoRepeat(false);  // a key that is held down enters or leaves edit mode once
  item("mnuPlikZapiszCzasownik").setEnabled(false);
}

QAction& EditedWindow::item(MenuItemName name) const { return menuItem(*window_.menuBar(), name); }

std::string EditedWindow::entryText() const { return toFrench(window_.boxes().entry().text()); }

void EditedWindow::setEntryText(std::string_view text) {
  window_.boxes().entry().showForm(fromFrench(text));
}

void EditedWindow::clearBoxes() {
  const ChangesUnheard unheard;
  for (int slot = 0; slot < engine::kSlotCount; ++slot) window_.boxes()[slot].showForm(QString());
}

void EditedWindow::present(const EditPresentation& presentation) {
  window_.setEditing(presentation.isEditing);
  QAction& edit = item("mnuEdycjaEdytujCzasownik");
  const bool wasEditing = !edit.property(kTagProperty).toString().isEmpty();
  if (presentation.isEditing != wasEditing) announce(spokenState(presentation.isEditing));
  edit.setProperty(kTagProperty, presentation.isEditing ? QStringLiteral("edit") : QString());
  edit.setText(fromUtf8(presentation.menuCaption));
  offerEscape(edit, presentation.isEditing);
  item("mnuPlikZapiszCzasownik").setEnabled(presentation.isEditing);
  window_.setWindowTitle(captionOf(presentation.windowCaption));
}

QString EditedWindow::spokenState(bool isEditing) const {
  if (!isEditing) return QStringLiteral("Koniec edycji.");
  const QString verb = window_.boxes().entry().text().trimmed();
  const QString what = verb.isEmpty() ? QStringLiteral("nowego czasownika")
                                      : QStringLiteral("czasownika %1").arg(verb);
  return QStringLiteral("Edycja %1. Formy można zmieniać, Ctrl+S zapisuje.").arg(what);
}

void EditedWindow::showHourglass(bool isShown) {
  isShown ? pointer_.showHourglass() : pointer_.showDefault();
}

std::string EditedWindow::conjugate() {
  window_.conjugate();
  return window_.infinitive();
}

std::string EditedWindow::conjugateForEditing() {
  window_.conjugateForEditing();
  return window_.infinitive();
}

dictionary::UserVerbRecord EditedWindow::record() const {
  std::array<std::string, engine::kSlotCount> texts;
  for (int slot = 0; slot < engine::kSlotCount; ++slot)
    texts[static_cast<std::size_t>(slot)] = toFrench(window_.boxes()[slot].text());
  return recordOfBoxes(texts, window_.auxiliary());
}

bool EditedWindow::write(const dictionary::UserVerbRecord& record) {
  showHourglass(true);
  const dictionary::SaveResult result = userVerbs_.save(record);
  showHourglass(false);
  if (result == dictionary::SaveResult::failed) return false;
  announce(QStringLiteral("Zapisano czasownik %1.").arg(window_.boxes().entry().text().trimmed()));
  return true;
}

std::string EditedWindow::shownInfinitive() const { return window_.infinitive(); }

std::string EditedWindow::storedInfinitive() const { return window_.storedInfinitive(); }

// A record that is not there any more has been removed meanwhile, in the list.
bool EditedWindow::remove(std::string_view infinitive) {
  return userVerbs_.remove(infinitive) != dictionary::DeleteResult::failed;
}

// Another window, like the list, may have asked for the save.
void EditedWindow::focusForm(int slot) {
  window_.activateWindow();
  window_.boxes()[slot].setFocus();
  window_.boxes()[slot].selectAll();
}

}  // namespace odmiennik::app
