// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that edit and conjugate.
#include "app/editing/editing.h"

#include <QPushButton>

#include "app/common/text.h"
#include "app/controls/main_menu.h"
#include "app/main_window/main_window.h"

namespace odmiennik::app {

Editing::Editing(MainWindow& window, WindowPointer& pointer, dictionary::UserVerbsFile& userVerbs,
                 dictionary::MessageBoxes& messages, std::function<bool()> print)
    : window_(window),
      edited_(window, pointer, userVerbs),
      mode_(toUtf8(window.windowTitle()), edited_, messages),
      print_(std::move(print)) {
  connectControls();
  for (int slot = 0; slot < engine::kSlotCount; ++slot)
    connect(&window_.boxes()[slot], &QLineEdit::textChanged, this, &Editing::boxChanged);
  // The auxiliary is saved with the forms.
  connect(&window_, &MainWindow::auxiliaryEdited, this, &Editing::boxChanged);
}

// Queued, since a command may open a message box: whoever gave it (a screen reader) is answered
// before the box waits.
void Editing::connectControls() {
  const auto conjugates = [this] { conjugate(); };
  connect(&window_.boxes().entry(), &QLineEdit::returnPressed, this, conjugates,
          Qt::QueuedConnection);
  connect(&window_.controls().get<QPushButton>(positionOf("cmdOdmień")), &QPushButton::clicked,
          this, conjugates, Qt::QueuedConnection);
}

void Editing::enterOrLeaveLater() {
  const auto editUnlessDone = [this, wasEditing = isEditing()] {
    if (wasEditing == isEditing()) edit();
  };
  QMetaObject::invokeMethod(this, editUnlessDone, Qt::QueuedConnection);
}

// A second command while the first one's message is on the screen does nothing.
bool Editing::run(bool (EditMode::*command)()) {
  if (mode_.isBusy()) return false;
  const bool isDone = (mode_.*command)();
  offerRestoring();
  return isDone;
}

// Forms that are being edited are left first: what becomes of them is another question.
void Editing::offerRestoring() {
  menuItem(*window_.menuBar(), "mnuCzasownikPrzywróć")
      .setEnabled(window_.isUsersOwn() && !isEditing());
}

bool Editing::conjugate(std::string_view infinitive) {
  if (mode_.isBusy()) return false;
  edited_.setEntryText(infinitive);
  return conjugate();
}

bool Editing::newVerb() {
  const bool isStarted = run(&EditMode::newVerb);
  if (isStarted) window_.boxes().selectEntry();
  return isStarted;
}

// The text is asked for in edit mode only: a conjugation changes a hundred boxes.
void Editing::boxChanged() {
  const std::string infinitive = mode_.isEditing() ? edited_.entryText() : std::string();
  if (mode_.boxChanged(infinitive))
    window_.setWindowTitle(captionOf(mode_.presentation().windowCaption));
}

}  // namespace odmiennik::app
