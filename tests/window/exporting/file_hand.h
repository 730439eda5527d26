// SPDX-License-Identifier: GPL-3.0-or-later
// The user's hand on the file dialog.
#pragma once

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>
#include <QTest>
#include <QTimer>
#include <functional>

#include "app/logic/saved_kinds.h"
#include "tests/window/watched_application.h"

namespace odmiennik::window_test {

// While it lives, answers each file dialog that opens: chooses a kind, types a name over what is
// proposed, presses Save. Asked whether to replace a file it answers `answer`; after a No, and
// without a name, it gives up.
class FileHand final : public QObject {
 public:
  explicit FileHand(QString typed, app::SavedKind kind = app::SavedKind::pdf)
      : name(std::move(typed)), kind_(kind) {
    connect(&poll_, &QTimer::timeout, this, &FileHand::look);
    poll_.start(1);
  }

  QString name;
  int dialogs = 0;
  int questions = 0;     // whether a file may be replaced, asked by the dialog itself
  QStringList proposed;  // the names, as they stood when the kind had been chosen
  QMessageBox::StandardButton answer = QMessageBox::Yes;
  std::function<void(QFileDialog&)> meanwhile = [](QFileDialog&) {};

 private:
  void look() {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || !modal->isVisible()) return;
    if (isFilling_ && modal == seen_) return;
    if (auto* box = qobject_cast<QMessageBox*>(modal)) {
      ++questions;
      box->button(answer)->click();
    } else if (auto* dialog = qobject_cast<QFileDialog*>(modal)) {
      WatchedApplication::mayOpenModal();
      dialog == seen_ ? dialog->reject() : fillSoon(*dialog);
    }
  }

  // Not from the timer, which is silent while what it has begun waits for an answer.
  void fillSoon(QFileDialog& dialog) {
    seen_ = &dialog;
    isFilling_ = true;
    QMetaObject::invokeMethod(
        &dialog, [this, &dialog] { fill(dialog); }, Qt::QueuedConnection);
  }

  void fill(QFileDialog& dialog) {
    const auto end = qScopeGuard([this] { isFilling_ = false; });
    ++dialogs;
    choose(*dialog.findChild<QComboBox*>("fileTypeCombo"));
    auto& field = *dialog.findChild<QLineEdit*>("fileNameEdit");
    proposed += field.text();
    meanwhile(dialog);
    if (name.isEmpty()) return dialog.reject();
    field.setText(name);
    dialog.findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Save)->click();
  }

  void choose(QComboBox& kinds) const {
    while (kinds.currentIndex() < static_cast<int>(kind_)) QTest::keyClick(&kinds, Qt::Key_Down);
    while (kinds.currentIndex() > static_cast<int>(kind_)) QTest::keyClick(&kinds, Qt::Key_Up);
  }

  app::SavedKind kind_;
  QPointer<QFileDialog> seen_;
  bool isFilling_ = false;
  QTimer poll_;
};

}  // namespace odmiennik::window_test
