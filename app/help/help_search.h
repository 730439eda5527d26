// SPDX-License-Identifier: GPL-3.0-or-later
// Searching in the page that the help shows.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBrowser>
#include <QWidget>

namespace odmiennik::app {

// A row with a field, its two buttons and the word that tells when nothing is found. Accents, case
// and the kind of apostrophe do not matter. The search begins anew where the page ends.
class HelpSearch final : public QWidget {
  Q_OBJECT

 public:
  HelpSearch(QTextBrowser& page, QWidget* parent);

  // Puts the field under the caret.
  void begin();

 private:
  void arrange();
  void connectControls();
  void search(QTextDocument::FindFlags direction);
  void typed();
  void answer(const QString& text);

  QTextBrowser& page_;
  QLineEdit* field_;
  QPushButton* previous_;
  QPushButton* next_;
  QLabel* answer_;
};

}  // namespace odmiennik::app
