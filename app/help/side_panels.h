// SPDX-License-Identifier: GPL-3.0-or-later
// What stands beside the pages: table of contents, index, search over all pages.
#pragma once

#include <QTabWidget>

#include "app/help/contents_panel.h"
#include "app/help/find_panel.h"
#include "app/help/help_finder.h"
#include "app/help/index_panel.h"

namespace odmiennik::app {

class SidePanels final : public QTabWidget {
  Q_OBJECT

 public:
  // `book` outlives the panels.
  SidePanels(const HelpBook& book, QWidget* parent);

  // Shows what the book holds, once another file has been opened.
  void fill();

  // The page that is shown.
  void follow(const QString& page) { contents_->follow(page); }

  // Come to the front and take the keyboard.
  void beginContents();
  void beginIndex();
  void beginFind();

  // The keyboard goes into the panel in front.
  void beginCurrent();

 signals:
  // A page is to be shown; with `words` those are marked on it.
  void chosen(const QString& page, const QString& words);

  // The page that was chosen is to be read: the keyboard goes there.
  void entered();

 private:
  const HelpBook& book_;
  HelpFinder finder_;
  ContentsPanel* contents_;
  IndexPanel* index_;
  FindPanel* find_;
};

}  // namespace odmiennik::app
