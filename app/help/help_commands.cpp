// The ways to the help and to the about window.
#include "app/help/help_commands.h"

#include <QApplication>
#include <QEvent>

#include "app/controls/main_menu.h"
#include "app/main_window/main_window.h"

namespace odmiennik::app {
namespace {

// The key of a menu item that does more than the item when it is chosen.
class ItemKey final : public QObject {
 public:
  ItemKey(QAction& item, std::function<void()> pressed)
      : QObject(&item), pressed_(std::move(pressed)) {
    item.installEventFilter(this);
  }

  bool eventFilter(QObject* /*item*/, QEvent* event) override {
    if (event->type() != QEvent::Shortcut) return false;
    pressed_();
    return true;
  }

 private:
  std::function<void()> pressed_;
};

}  // namespace

HelpCommands::HelpCommands(MainWindow& window, dictionary::MessageBoxes& messages,
                           std::function<Usage()> usage)
    : help_(window), headings_(window.controls(), help_, nullptr) {
  QAction& topics = menuItem(*window.menuBar(), "mnuPomocTematy");
  topics.setShortcutContext(Qt::ApplicationShortcut);  // beside the main window too
  new ItemKey(topics, [this, &window] { openForFocus(window); });
  QObject::connect(
      &topics, &QAction::triggered, &help_, [this] { help_.open(kWelcomePage); },
      Qt::QueuedConnection);
  QObject::connect(
      &menuItem(*window.menuBar(), "mnuPomocOProgramie"), &QAction::triggered, &help_,
      [&window, &messages, usage = std::move(usage)] {
        auto* about = new AboutWindow(&window, usage(), messages);
        about->setAttribute(Qt::WA_DeleteOnClose);
        about->open();
      },
      Qt::QueuedConnection);
}

void HelpCommands::openForFocus(const MainWindow& window) {
  for (int slot = 0; slot < engine::kSlotCount; ++slot)
    if (&window.boxes()[slot] == QApplication::focusWidget())
      if (const auto page = topicOfSlot(slot)) return help_.open(*page);
  const QWidget* front = QApplication::activeWindow();
  const std::string name = front == nullptr ? std::string() : front->objectName().toStdString();
  help_.open(topicOfWindow(name).value_or(kWelcomePage));
}

}  // namespace odmiennik::app
