// SPDX-License-Identifier: GPL-3.0-or-later
// Runs of the program in one folder: what is written before, shown meanwhile and left behind.
#pragma once

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include "engine/utf8.h"
#include "tests/unit/dictionary/program_files.h"
#include "tests/window/program_under_test.h"

namespace odmiennik::window_test {

// What outlives a run: the program's folder and the user's store.
class ProgramHome final : public testing::ProgramFolder {
 public:
  ProgramHome() { store.setTipShownAtStart(false); }

  [[nodiscard]] QString settings() const { return QString::fromStdString(read("Werbolin.cfg")); }
  // A line of the settings file, 1 to 5.
  [[nodiscard]] QString setting(int line) const { return settings().split("\r\n").value(line - 1); }

  app::UserStore store{QString::fromStdString((path() / "store.ini").string())};
};

// One run, not yet started; Yes to every question unless told otherwise.
struct ProgramRun {
  explicit ProgramRun(ProgramHome& home, disk::FileSystem& files = disk::systemFiles(),
                      const std::optional<std::string>& verb = {})
      : program({.folder = Utf8Text(asUtf8(home.path().string())),
                 .messages = messages,
                 .store = home.store,
                 .end = [this] { ++ends; },
                 .files = files,
                 .verb = verb}) {
    messages.answer = dictionary::Button::yes;
  }

  template <typename Widget>
  [[nodiscard]] Widget& widget(const char* name) {
    auto* found = program.window().findChild<Widget*>(QString::fromUtf8(name));
    if (found == nullptr) qFatal("no control %s", name);
    return *found;
  }
  [[nodiscard]] QLineEdit& entry() { return widget<QLineEdit>("txtCzasownik_96"); }

  void conjugate(const QString& infinitive) {
    entry().setText(infinitive);
    program.window().conjugate();
  }

  AnsweredMessages messages;
  int ends = 0;  // how often the program has been ended at once
  app::Program program;
};

// Does something in each modal window that opens while it lives; a window that is not closed by it
// is rejected, so that no test hangs.
class ModalVisitor final : public QObject {
 public:
  explicit ModalVisitor(std::function<void(QDialog&)> visit) : visit_(std::move(visit)) {
    connect(&poll_, &QTimer::timeout, this, &ModalVisitor::look);
    poll_.start(1);
  }
  int visits = 0;

 private:
  void look() {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->isVisible()) return;
    WatchedApplication::mayOpenModal();
    ++visits;
    visit_(*dialog);
    dialog->reject();
  }

  std::function<void(QDialog&)> visit_;
  QTimer poll_;
};

}  // namespace odmiennik::window_test
