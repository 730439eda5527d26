// SPDX-License-Identifier: GPL-3.0-or-later
// Building of the menu bar.
#include "app/controls/main_menu.h"

#include <QKeySequence>
#include <QMenu>
#include <QShortcut>

#include "app/common/text.h"

namespace odmiennik::app {
namespace {

QMenu* addMenu(QMenuBar& bar, const MenuRow& row) {
  QMenu* menu = bar.addMenu(fromUtf8(row.caption));
  menu->setObjectName(fromUtf8(row.name));
  return menu;
}

void addItem(QMenu& menu, const MenuRow& row) {
  auto* action = new QAction(fromUtf8(row.caption), &menu);
  action->setObjectName(fromUtf8(row.name));
  action->setSeparator(row.kind == MenuKind::separator);
  action->setCheckable(row.kind == MenuKind::checkableItem);
  action->setEnabled(row.kind == MenuKind::separator || row.state == MenuState::ready);
  if (!row.keys.empty()) action->setShortcut(QKeySequence(fromUtf8(row.keys)));
  menu.addAction(action);
}

// Alt alone leads to the menu everywhere; F10 does on systems whose own windows have it.
void openWithKey(QMenuBar& bar) {
  auto* key = new QShortcut(QKeySequence(Qt::Key_F10), &bar);
  QObject::connect(key, &QShortcut::activated, &bar,
                   [&bar] { bar.setActiveAction(bar.actions().constFirst()); });
}

}  // namespace

void buildMainMenu(QMenuBar& bar) {
  QMenu* menu = nullptr;
  for (const MenuRow& row : kMainMenu) {
    if (row.kind == MenuKind::menu)
      menu = addMenu(bar, row);
    else
      addItem(*menu, row);
  }
  openWithKey(bar);
}

QAction& menuItem(const QMenuBar& bar, MenuItemName name) {
  return *bar.findChild<QAction*>(fromUtf8(name.text()));
}

}  // namespace odmiennik::app
