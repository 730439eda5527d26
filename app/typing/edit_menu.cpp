// The edit commands.
#include "app/typing/edit_menu.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>

#include "app/controls/main_menu.h"

namespace odmiennik::app {
namespace {

struct Item {
  std::string_view name;
  bool EditAvailability::*isAvailable;
};
constexpr Item kItems[] = {{"mnuEdycjaCofnij", &EditAvailability::canUndo},
                           {"mnuEdycjaWytnij", &EditAvailability::canCut},
                           {"mnuEdycjaKopiuj", &EditAvailability::canCopy},
                           {"mnuEdycjaWklej", &EditAvailability::canPaste},
                           {"mnuEdycjaUsuń", &EditAvailability::canDelete},
                           {"mnuEdycjaZaznaczWszystko", &EditAvailability::canSelectAll}};

// Files on the clipboard are no text, though they could be shown as one.
bool isTextOnClipboard() {
  const QMimeData* content = QGuiApplication::clipboard()->mimeData();
  return content != nullptr && content->hasFormat(QStringLiteral("text/plain"));
}

}  // namespace

EditMenu::EditMenu(QMainWindow& window, const FormBoxes& boxes)
    : window_(window), menu_(*window.menuBar()->findChild<QMenu*>(QStringLiteral("mnuEdycja"))) {
  connectItem("mnuEdycjaCofnij", &EditAvailability::canUndo, [](QLineEdit& box) { box.undo(); });
  connectItem("mnuEdycjaWytnij", &EditAvailability::canCut, [](QLineEdit& box) { box.cut(); });
  connectItem("mnuEdycjaKopiuj", &EditAvailability::canCopy, [](QLineEdit& box) { box.copy(); });
  connectItem("mnuEdycjaWklej", &EditAvailability::canPaste, [](QLineEdit& box) { box.paste(); });
  connectItem("mnuEdycjaUsuń", &EditAvailability::canDelete, [](QLineEdit& box) { box.del(); });
  connectItem("mnuEdycjaZaznaczWszystko", &EditAvailability::canSelectAll,
              [](QLineEdit& box) { box.selectAll(); });
  followBoxes(boxes);
  connect(&menu_, &QMenu::aboutToShow, this, &EditMenu::clipboardChanged);
  connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this,
          &EditMenu::clipboardChanged);
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* now) { focusChanged(now); });
  focusChanged(window_.focusWidget());
}

void EditMenu::connectItem(std::string_view name, bool EditAvailability::*isAvailable,
                           Command command) {
  connect(&menuItem(*window_.menuBar(), name), &QAction::triggered, this,
          [this, isAvailable, command] {
            isTextOnClipboard_ = isTextOnClipboard();
            if (auto* box = qobject_cast<QLineEdit*>(active_); box && availability().*isAvailable)
              command(*box);
          });
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
  const qsizetype first = actions.indexOf(&menuItem(*window_.menuBar(), kItems[0].name));
  context->addActions(actions.sliced(first));
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
  const std::string name = active_ ? active_->objectName().toStdString() : std::string();
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
  for (const Item& item : kItems)
    menuItem(*window_.menuBar(), item.name).setEnabled(available.*item.isAvailable);
}

}  // namespace odmiennik::app
