// SPDX-License-Identifier: GPL-3.0-or-later
// A field above a list: the keys that move in the list do so from the field as well.
#pragma once

#include <QObject>

class QLineEdit;
class QListWidget;

namespace odmiennik::app {

// Belongs to `field`.
class ListKeys final : public QObject {
  Q_OBJECT

 public:
  ListKeys(QLineEdit& field, QListWidget& list);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QListWidget& list_;
};

}  // namespace odmiennik::app
