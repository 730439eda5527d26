// SPDX-License-Identifier: GPL-3.0-or-later
// The list of verbs: a list box that hands over what is typed into it.
#pragma once

#include <QListWidget>

namespace odmiennik::app {

class VerbListBox final : public QListWidget {
  Q_OBJECT

 public:
  using QListWidget::QListWidget;

  // Selects an entry and shows it near the top, so that what follows it is seen too.
  void showInUpperThird(int entry);

 signals:
  // A letter has been typed that leads to a verb.
  void typed(const QString& key);

 protected:
  // Qt's own search minds accents and leaves what it found at the lower edge.
  void keyboardSearch(const QString& key) override { emit typed(key); }
  void focusInEvent(QFocusEvent* event) override;
};

}  // namespace odmiennik::app
