// SPDX-License-Identifier: GPL-3.0-or-later
// The ways to the help and to the about window.
#include "app/help/help_commands.h"

#include <QApplication>
#include <QEvent>
#include <QMenuBar>

#include "app/common/text.h"
#include "app/controls/main_menu.h"
#include "app/main_window/main_window.h"

namespace odmiennik::app {
namespace {

// The key of a menu item that does more than the item when it is chosen. In an open menu it does
// nothing: keys belong to the menu there.
class ItemKey final : public QObject {
 public:
  ItemKey(QAction& item, std::function<void()> pressed)
      : QObject(&item), pressed_(std::move(pressed)) {
    item.installEventFilter(this);
  }

  bool eventFilter(QObject* /*item*/, QEvent* event) override {
    if (event->type() != QEvent::Shortcut) return false;
    if (QApplication::activePopupWidget() == nullptr) pressed_();
    return true;
  }

 private:
  std::function<void()> pressed_;
};

const QWidget* windowBehind(const QWidget& window) {
  return window.parentWidget() == nullptr ? nullptr : window.parentWidget()->window();
}

// The page of the window in front, or of the one that a message or a dialog belongs to.
Utf8View topicInFront() {
  for (const QWidget* window = QApplication::activeWindow(); window != nullptr;
       window = windowBehind(*window))
    if (const auto page = topicOfWindow(toUtf8(window->objectName()))) return *page;
  return kWelcomePage;
}

}  // namespace

HelpCommands::HelpCommands(MainWindow& window, UserStore& store, dictionary::MessageBoxes& messages,
                           std::function<Usage()> usage)
    : window_(window),
      messages_(messages),
      usage_(std::move(usage)),
      help_(window, store),
      headings_(window.controls(), help_, nullptr),
      key_([this] { openForFocus(); }) {
  QAction& topics = menuItem(*window.menuBar(), "mnuPomocTematy");
  topics.setShortcutContext(Qt::ApplicationShortcut);  // beside the main window too
  new ItemKey(topics, [this] { openForFocus(); });
}

void HelpCommands::open() { help_.open(kWelcomePage); }

void HelpCommands::showAbout() {
  auto* about = new AboutWindow(&window_, usage_(), messages_);
  about->setAttribute(Qt::WA_DeleteOnClose);
  about->open();
}

void HelpCommands::openForFocus() {
  for (int slot = 0; slot < engine::kSlotCount; ++slot)
    if (&window_.boxes()[slot] == QApplication::focusWidget())
      if (const auto page = topicOfSlot(slot)) return help_.open(*page);
  help_.open(topicInFront());
}

}  // namespace odmiennik::app
