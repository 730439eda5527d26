// SPDX-License-Identifier: GPL-3.0-or-later
// Opening the verb list.
#include "app/list/list_menu.h"

#include "app/common/beside.h"

namespace odmiennik::app {

ListMenu::ListMenu(QMainWindow& main, const Utf8Text& prefix, dictionary::UserVerbsFile& userVerbs,
                   MainCommands& commands, ListWindow::Save save)
    : main_(main),
      prefix_(prefix),
      userVerbs_(userVerbs),
      commands_(commands),
      save_(std::move(save)) {
  userVerbs_.tellOfChanges([this] {
    if (window_) window_->followUserVerbs();
  });
}

void ListMenu::open(ListPurpose purpose) {
  if (window_ == nullptr) {
    window_ = new ListWindow(prefix_, userVerbs_, commands_, save_, &main_);
    window_->setAttribute(Qt::WA_DeleteOnClose);
  }
  if (!window_->isVisible()) placeBeside(*window_, main_);
  window_->showFor(purpose);
}

}  // namespace odmiennik::app
