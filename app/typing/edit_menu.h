// SPDX-License-Identifier: GPL-3.0-or-later
// The edit commands of the menu and of the boxes' context menus, on whichever control has the
// focus.
#pragma once

#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QObject>
#include <QPointer>
#include <string>

#include "app/controls/menu_table.h"
#include "app/logic/edit_commands.h"
#include "app/main_window/form_boxes.h"

namespace odmiennik::app {

// An item, when it may be chosen, and what it does.
struct EditCommand {
  MenuItemName item;
  bool EditAvailability::*isAvailable;
  void (*run)(QLineEdit& box);
};
inline constexpr EditCommand kEditCommands[] = {
    {"mnuEdycjaCofnij", &EditAvailability::canUndo, [](QLineEdit& box) { box.undo(); }},
    {"mnuEdycjaWytnij", &EditAvailability::canCut, [](QLineEdit& box) { box.cut(); }},
    {"mnuEdycjaKopiuj", &EditAvailability::canCopy, [](QLineEdit& box) { box.copy(); }},
    {"mnuEdycjaWklej", &EditAvailability::canPaste, [](QLineEdit& box) { box.paste(); }},
    {"mnuEdycjaUsuń", &EditAvailability::canDelete, [](QLineEdit& box) { box.del(); }},
    {"mnuEdycjaZaznaczWszystko", &EditAvailability::canSelectAll,
     [](QLineEdit& box) { box.selectAll(); }},
};

// The items are available as the active control and the clipboard allow at the moment: when the
// menu opens, and when a shortcut is pressed with the menu closed.
class EditMenu final : public QObject {
  Q_OBJECT

 public:
  EditMenu(QMainWindow& window, const FormBoxes& boxes);

  // Computes the items' availability anew.
  void refresh();

 private:
  void connectItems();
  void run(const EditCommand& command);
  void followBoxes(const FormBoxes& boxes);
  void showContextMenu(QLineEdit& box, QPoint onScreen);
  void focusChanged(QWidget* now);
  void clipboardChanged();
  [[nodiscard]] EditAvailability availability() const;

  QMainWindow& window_;
  QMenu& menu_;
  QPointer<QWidget> active_;  // the control that has the focus, or had it before the menu
  bool isTextOnClipboard_ = false;
};

}  // namespace odmiennik::app
