// SPDX-License-Identifier: GPL-3.0-or-later
// Searching in all pages: a field and the list of the pages found.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include "app/help/help_finder.h"

namespace odmiennik::app {

// Lists, while one types, every page on which all the words stand, with the number of places and a
// line of its text.
class FindPanel final : public QWidget {
  Q_OBJECT

 public:
  // `finder` outlives the panel.
  FindPanel(HelpFinder& finder, QWidget* parent);

  // Puts the field under the caret.
  void begin();

 signals:
  // A page is to be shown with the words marked.
  void chosen(const QString& page, const QString& words);

 private:
  void arrange();
  void search();
  void list(const std::vector<FoundPage>& pages);
  void open();

  HelpFinder& finder_;
  QLineEdit* field_;
  QLabel* answer_;
  QListWidget* pages_;
};

}  // namespace odmiennik::app
