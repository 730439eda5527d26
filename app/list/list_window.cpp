// SPDX-License-Identifier: GPL-3.0-or-later
// The verb list.
#include "app/list/list_window.h"

#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSignalBlocker>
#include <utility>

#include "app/common/announcement.h"
#include "app/common/text.h"
#include "app/list/list_filling.h"

namespace odmiennik::app {

namespace {

// A pause after which the next key begins another verb; learners do not type fast.
constexpr qint64 kPauseMilliseconds = 1000;

}  // namespace

ListWindow::ListWindow(const Utf8Text& prefix, dictionary::UserVerbsFile& userVerbs,
                       MainCommands& main, Save save, QWidget* mainWindow)
    : SteadyWindow(mainWindow),
      prefix_(prefix),
      userVerbs_(userVerbs),
      main_(main),
      save_(std::move(save)),
      controls_(*this) {
  setObjectName(QStringLiteral("frmLista"));
  connectControls();
}

// Queued, since a command may ask whether to save: whoever pressed the button is answered first.
void ListWindow::connectControls() {
  const auto runs = [this](QPushButton& widget, ListButton button) {
    connect(
        &widget, &QPushButton::clicked, this, [this, button] { run(button); },
        Qt::QueuedConnection);
  };
  runs(controls_.cmdOdmień, ListButton::cmdOdmień);
  runs(controls_.cmdEdytuj, ListButton::cmdEdytuj);
  runs(controls_.cmdNowy, ListButton::cmdNowy);
  runs(controls_.cmdDrukuj, ListButton::cmdDrukuj);
  connect(&controls_.cmdUsuń, &QPushButton::clicked, this, &ListWindow::deleteSelected,
          Qt::QueuedConnection);
  connect(&controls_.cmdZapiszListę, &QPushButton::clicked, this, &ListWindow::saveListed,
          Qt::QueuedConnection);
  connect(&controls_.cmdZamknij, &QPushButton::clicked, this, &ListWindow::close);
  connect(&controls_.lstCzasowniki, &QListWidget::doubleClicked, &controls_.cmdOdmień, [this] {
    if (controls_.cmdOdmień.isVisible()) controls_.cmdOdmień.click();
  });
  connect(&controls_.lstCzasowniki, &QListWidget::currentRowChanged, this,
          [this](int row) { list_.select(static_cast<std::size_t>(row)); });
  connect(&controls_.lstCzasowniki, &VerbListBox::typed, this, &ListWindow::search);
  connect(&controls_.cmbLista, &QComboBox::currentIndexChanged, this, &ListWindow::choose);
  connect(&controls_.cmbLista, &QComboBox::activated, this, &ListWindow::chooseAgain);
}

bool ListWindow::event(QEvent* event) {
  if (event->type() == QEvent::ScreenChangeInternal) controls_.fitToScreen();
  return SteadyWindow::event(event);
}

void ListWindow::showFor(ListPurpose purpose) {
  purpose_ = purpose;
  controls_.present(appearanceOf(purpose));
  if (!isVisible()) {
    const QSignalBlocker silent(controls_.cmbLista);
    controls_.cmbLista.setCurrentIndex(choice_ = 0);
    controls_.cmbLista.setFocus();
  }
  if (!list_.isFilling()) choice_ == 0 ? ŁadujListęUżytkownika() : showState();
  show();
  raise();
  activateWindow();
}

void ListWindow::ŁadujListęUżytkownika() {
  list_.loadUserVerbs(findUserVerbs(prefix_, userVerbs_));
  showEntries();
}

// What is chosen although it is listed already: the user's verbs may be others by now.
void ListWindow::chooseAgain(int choice) {
  if (!std::exchange(isChosenAnew_, false) && choice == 0) choose(choice);
}

void ListWindow::choose(int choice) {
  if (list_.isFilling()) {
    // A letter is being filled: nothing else is begun, and the choice shows what is listed.
    const QSignalBlocker silent(controls_.cmbLista);
    controls_.cmbLista.setCurrentIndex(choice_);
    return;
  }
  choice_ = choice;
  isChosenAnew_ = true;
  const QSignalBlocker silent(controls_.lstCzasowniki);
  if (choice > 0) {
    fillLetter(letterOfChoice(choice), list_, controls_);
    showState();
  } else {
    list_.chooseUserVerbs(findUserVerbs(prefix_, userVerbs_));
    showEntries();
  }
}

void ListWindow::showEntries() {
  const QSignalBlocker silent(controls_.lstCzasowniki);
  controls_.lstCzasowniki.clear();
  for (const std::string& verb : list_.entries()) controls_.lstCzasowniki.addItem(fromFrench(verb));
  showState();
}

void ListWindow::showState() {
  const auto selected = list_.selected();
  controls_.enable(list_.enabled());
  controls_.lstCzasowniki.setCurrentRow(selected ? static_cast<int>(*selected) : -1);
  controls_.lblIlośćCzasowników.setText(fromUtf8(list_.countLabel()));
  const bool isEmpty = list_.entries().empty();
  controls_.showHint(isEmpty ? fromUtf8(emptyListHint(purpose_, choice_)) : QString());
}

// The scroll bar keeps the place; the selected verb is chosen by the list.
void ListWindow::followUserVerbs() {
  if (isDeleting_ || choice_ != 0 || list_.isFilling()) return;
  const int place = controls_.lstCzasowniki.verticalScrollBar()->value();
  list_.followUserVerbs(findUserVerbs(prefix_, userVerbs_));
  showEntries();
  controls_.lstCzasowniki.verticalScrollBar()->setValue(place);
}

void ListWindow::search(const QString& key) {
  const bool isContinued = sinceKey_.isValid() && sinceKey_.elapsed() < kPauseMilliseconds;
  sinceKey_.start();
  const auto found = search_.type(toFrench(key), isContinued, list_.entries(), list_.selected());
  if (found) controls_.lstCzasowniki.showInUpperThird(static_cast<int>(*found));
}

// The main window comes forward for a verb that is to be typed or corrected; after the other
// commands the next verb can be picked at once.
void ListWindow::run(ListButton button) {
  if (list_.isFilling()) return;
  const std::string selected(list_.selectedVerb());
  if (!runListButton(button, selected, main_)) return;
  if (button == ListButton::cmdEdytuj || button == ListButton::cmdNowy)
    parentWidget()->activateWindow();
}

void ListWindow::deleteSelected() {
  if (list_.isFilling() || !list_.selected()) return;
  const std::string infinitive(list_.selectedVerb());
  const QScopedValueRollback<bool> deleting(isDeleting_, true);
  if (userVerbs_.remove(infinitive) != dictionary::DeleteResult::deleted) return;
  announce(QStringLiteral("Usunięto czasownik %1.").arg(fromFrench(infinitive)));
  list_.drop(infinitive);
  showEntries();
}

void ListWindow::saveListed() {
  if (list_.isFilling() || list_.entries().empty()) return;
  save_(*this, savedList(choice_, list_.entries()));
}

}  // namespace odmiennik::app
