// SPDX-License-Identifier: GPL-3.0-or-later
// Opening the verb list.
#include "app/list/list_menu.h"

#include <QMenuBar>

#include "app/common/beside.h"
#include "app/controls/main_menu.h"

namespace odmiennik::app {

ListMenu::ListMenu(QMainWindow& main, const Utf8Text& prefix, dictionary::UserVerbsFile& userVerbs,
                   MainCommands& commands)
    : main_(main), prefix_(prefix), userVerbs_(userVerbs), commands_(commands) {
  const auto opens = [this](MenuItemName item, ListPurpose purpose) {
    QObject::connect(
        &menuItem(*main_.menuBar(), item), &QAction::triggered, &main_,
        [this, purpose] { open(purpose); }, Qt::QueuedConnection);
  };
  opens("mnuEdycjaLista", ListPurpose::list);
  opens("mnuEdycjaUsuńCzasownik", ListPurpose::deletion);
  userVerbs_.tellOfChanges([this] {
    if (window_) window_->followUserVerbs();
  });
}

void ListMenu::open(ListPurpose purpose) {
  if (window_ == nullptr) {
    window_ = new ListWindow(prefix_, userVerbs_, commands_, &main_);
    window_->setAttribute(Qt::WA_DeleteOnClose);
  }
  if (!window_->isVisible()) placeBeside(*window_, main_);
  window_->showFor(purpose);
}

}  // namespace odmiennik::app
