// SPDX-License-Identifier: GPL-3.0-or-later
// The edit commands.
#include "app/typing/edit_menu.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>

#include "app/common/text.h"
#include "app/controls/main_menu.h"

namespace odmiennik::app {
namespace {

// Files on the clipboard are no text, though they could be shown as one.
bool isTextOnClipboard() {
  const QMimeData* content = QGuiApplication::clipboard()->mimeData();
  return content != nullptr && content->hasFormat(QStringLiteral("text/plain"));
}

}  // namespace

EditMenu::EditMenu(QMainWindow& window, const FormBoxes& boxes)
    : window_(window), menu_(*window.menuBar()->findChild<QMenu*>(QStringLiteral("mnuEdycja"))) {
  connectItems();
  followBoxes(boxes);
  connect(&menu_, &QMenu::aboutToShow, this, &EditMenu::clipboardChanged);
  connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this,
          &EditMenu::clipboardChanged);
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* now) { focusChanged(now); });
  focusChanged(window_.focusWidget());
}

void EditMenu::connectItems() {
  for (const EditCommand& command : kEditCommands)
    connect(&menuItem(*window_.menuBar(), command.item), &QAction::triggered, this,
            [this, &command] { run(command); });
}

void EditMenu::run(const EditCommand& command) {
  isTextOnClipboard_ = isTextOnClipboard();
  auto* box = qobject_cast<QLineEdit*>(active_);
  if (box != nullptr && availability().*command.isAvailable) command.run(*box);
}

// A text or selection that changes elsewhere says nothing of the active control.
void EditMenu::followBoxes(const FormBoxes& boxes) {
  for (int slot = 0; slot < engine::kSlotCount; ++slot) {
    FormBox& box = boxes[slot];
    const auto follow = [this, &box] {
      if (&box == active_) refresh();
    };
    connect(&box, &QLineEdit::selectionChanged, this, follow);
    connect(&box, &QLineEdit::textChanged, this, follow);
    connect(&box, &FormBox::lockChanged, this, follow);
    box.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&box, &QWidget::customContextMenuRequested, this,
            [this, &box](QPoint at) { showContextMenu(box, box.mapToGlobal(at)); });
  }
}

// The menu's own items, so that both menus say and allow the same.
void EditMenu::showContextMenu(QLineEdit& box, QPoint onScreen) {
  active_ = &box;
  clipboardChanged();
  auto* context = new QMenu(&box);
  context->setAttribute(Qt::WA_DeleteOnClose);
  const QList<QAction*> actions = menu_.actions();
  const qsizetype first = actions.indexOf(&menuItem(*window_.menuBar(), kEditCommands[0].item));
  context->addActions(actions.sliced(first));
  context->addSeparator();
  context->addAction(&menuItem(*window_.menuBar(), "mnuCzasownikSkąd"));
  context->popup(onScreen);
}

// While a menu is open the control that had the focus before is the active one.
void EditMenu::focusChanged(QWidget* now) {
  if (now == nullptr || now->window() != &window_ || qobject_cast<QMenuBar*>(now) != nullptr)
    return;
  active_ = now;
  clipboardChanged();
}

void EditMenu::clipboardChanged() {
  isTextOnClipboard_ = isTextOnClipboard();
  refresh();
}

EditAvailability EditMenu::availability() const {
  ActiveControl control;
  const Utf8Text name = active_ ? toUtf8(active_->objectName()) : Utf8Text();
  control.name = name;
  if (const auto* box = qobject_cast<const QLineEdit*>(active_)) {
    control.isReadOnly = box->isReadOnly();
    control.selectionLength = static_cast<std::size_t>(box->selectedText().size());
    control.textLength = static_cast<std::size_t>(box->text().size());
    control.hasHistory = box->isUndoAvailable();
  }
  return editAvailability(control, isTextOnClipboard_);
}

void EditMenu::refresh() {
  const EditAvailability available = availability();
  for (const EditCommand& command : kEditCommands)
    menuItem(*window_.menuBar(), command.item).setEnabled(available.*command.isAvailable);
}

}  // namespace odmiennik::app
