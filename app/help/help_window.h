// SPDX-License-Identifier: GPL-3.0-or-later
// The help viewer: contents, index and search, pages, the way back, print.
#pragma once

#include <QPrinter>
#include <QPushButton>

#include "app/common/steady_window.h"
#include "app/help/help_book.h"
#include "app/help/help_browser.h"
#include "app/help/help_search.h"
#include "app/help/side_panels.h"

namespace odmiennik::app {

class UserStore;

// Stands beside the program's other windows; closing it hides it, its page and its way back stay.
class HelpWindow final : public SteadyWindow<> {
  Q_OBJECT

 public:
  // `book` and `store`, which keeps the size of the pages, outlive the window.
  HelpWindow(HelpBook& book, UserStore& store, QWidget* parent);

  // Shows a page of the help file: "strony\default.htm". The window comes to the front.
  void showPage(const QString& page);

  // Prints the page that is shown.
  void printTo(QPrinter& printer);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void create();
  void arrange();
  void connectControls();
  void connectKeys();
  void connectZoom();
  void choose(const QString& page, const QString& words);
  void zoomBy(int direction);
  void zoomTo(int percent);
  void moveOn(int direction);
  void standInFront();
  void choosePrinter();

  HelpBook& book_;
  UserStore& store_;
  HelpBrowser* pages_;
  HelpSearch* search_;
  SidePanels* panels_;
  QPushButton* back_;
  QPushButton* forward_;
  QPushButton* home_;
  QPushButton* print_;
};

}  // namespace odmiennik::app
