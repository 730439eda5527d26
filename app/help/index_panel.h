// SPDX-License-Identifier: GPL-3.0-or-later
// The index beside the pages: keywords, and a field that leaves those that hold what is typed.
#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <vector>

#include "app/help/help_contents.h"

namespace odmiennik::app {

// Accents and case of what is typed do not matter. The arrow keys move in the list from the field
// as well; Enter in either opens the page.
class IndexPanel final : public QWidget {
  Q_OBJECT

 public:
  explicit IndexPanel(QWidget* parent);

  // `entries` in the order in which they are shown.
  void fill(const std::vector<HelpContentsEntry>& entries);

  // Puts the field under the caret.
  void begin();

 signals:
  void chosen(const QString& page);

 private:
  void narrow();
  void open();

  QLineEdit* field_;
  QListWidget* keywords_;
};

}  // namespace odmiennik::app
