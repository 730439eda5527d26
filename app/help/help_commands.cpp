// The ways to the help and to the about window.
#include "app/help/help_commands.h"

#include <QApplication>
#include <QShortcut>

#include "app/controls/main_menu.h"
#include "app/main_window/main_window.h"

namespace odmiennik::app {

HelpCommands::HelpCommands(MainWindow& window, dictionary::MessageBoxes& messages,
                           std::function<Usage()> usage)
    : help_(window), headings_(window.controls(), help_, nullptr) {
  QObject::connect(
      &menuItem(*window.menuBar(), "mnuPomocTematy"), &QAction::triggered, &help_,
      [this] { help_.open(kWelcomePage); }, Qt::QueuedConnection);
  QObject::connect(
      &menuItem(*window.menuBar(), "mnuPomocOProgramie"), &QAction::triggered, &help_,
      [&window, &messages, usage = std::move(usage)] {
        auto* about = new AboutWindow(&window, usage(), messages);
        about->setAttribute(Qt::WA_DeleteOnClose);
        about->open();
      },
      Qt::QueuedConnection);
  auto* key = new QShortcut(QKeySequence(Qt::Key_F1), &window);
  key->setContext(Qt::ApplicationShortcut);  // beside the main window too
  QObject::connect(key, &QShortcut::activated, &help_, [this, &window] { openForFocus(window); });
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
