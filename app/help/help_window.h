// The help viewer: contents, pages, the way back, search and print.
#pragma once

#include <QPrinter>
#include <QPushButton>
#include <QTreeWidget>

#include "app/common/steady_window.h"
#include "app/help/help_book.h"
#include "app/help/help_browser.h"
#include "app/help/help_search.h"

namespace odmiennik::app {

// Stands beside the program's other windows; closing it hides it, its page and its way back stay.
class HelpWindow final : public SteadyWindow<> {
  Q_OBJECT

 public:
  // `book` outlives the window.
  HelpWindow(HelpBook& book, QWidget* parent);

  // Shows a page of the help file: "strony\default.htm". The window comes to the front.
  void showPage(const QString& page);

  // Prints the page that is shown.
  void printTo(QPrinter& printer) { pages_->print(&printer); }

 private:
  void create();
  void arrange();
  void connectControls();
  void connectKeys();
  void fillContents();
  void followPage(const QUrl& address);
  void choosePrinter();

  HelpBook& book_;
  HelpBrowser* pages_;
  HelpSearch* search_;
  QTreeWidget* contents_;
  QPushButton* back_;
  QPushButton* forward_;
  QPushButton* home_;
  QPushButton* print_;
};

}  // namespace odmiennik::app
