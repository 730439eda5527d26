// SPDX-License-Identifier: GPL-3.0-or-later
// Opening the window in which a form is looked for.
#include "app/finding/find_menu.h"

#include <QShortcut>

#include "app/common/beside.h"

namespace odmiennik::app {

FindMenu::FindMenu(MainWindow& main, dictionary::UserVerbsFile& userVerbs, MainCommands& commands,
                   std::function<void(QLineEdit&)> serve)
    : main_(main), userVerbs_(userVerbs), commands_(commands), serve_(std::move(serve)) {}

void FindMenu::open() {
  if (window_ == nullptr) create();
  if (!window_->isVisible()) placeBeside(*window_, main_);
  window_->showWith(refusedWord());
}

// The key F6 leads to the letter buttons, as it does from the boxes of the main window.
void FindMenu::create() {
  window_ = new FindWindow(
      userVerbs_, [this](const std::string& infinitive, int slot) { conjugate(infinitive, slot); },
      &main_);
  serve_(window_->field());
  auto* key = new QShortcut(QKeySequence(Qt::Key_F6), window_);
  QObject::connect(key, &QShortcut::activated, &main_, [this] {
    main_.activateWindow();
    main_.controls().get<QPushButton>(positionOf("cmdFrancuskaLitera", 0)).setFocus();
  });
}

// The word of the entry box when no verb came of it.
QString FindMenu::refusedWord() const {
  const engine::Conjugation& shown = main_.conjugation();
  const bool isRefused =
      shown.flags.isConjugationShown && shown.source == engine::Source::none && !main_.isEditing();
  return isRefused ? main_.boxes().entry().text() : QString();
}

void FindMenu::conjugate(const std::string& infinitive, int slot) {
  if (!runListButton(ListButton::cmdOdmień, infinitive, commands_)) return;
  main_.activateWindow();
  FormBox& box = main_.boxes()[slot];
  box.setFocus(Qt::OtherFocusReason);
  box.selectAll();
}

}  // namespace odmiennik::app
