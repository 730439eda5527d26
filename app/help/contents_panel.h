// SPDX-License-Identifier: GPL-3.0-or-later
// The table of contents beside the pages.
#pragma once

#include <QTreeWidget>
#include <vector>

#include "app/help/help_contents.h"

namespace odmiennik::app {

class ContentsPanel final : public QTreeWidget {
  Q_OBJECT

 public:
  explicit ContentsPanel(QWidget* parent);

  void fill(const std::vector<HelpContentsEntry>& entries);

  // Chooses the entry of a page that is shown, "/strony/default.htm".
  void follow(const QString& page);

 signals:
  // An entry was clicked, or the arrow keys came to it: its page is to be shown.
  void chosen(const QString& page);

  // Enter was pressed on an entry: its page is to be read.
  void entered();

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void selectionChanged(const QItemSelection& chosen, const QItemSelection& left) override;

 private:
  void choose(const QTreeWidgetItem* entry);
};

}  // namespace odmiennik::app
