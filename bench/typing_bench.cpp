// SPDX-License-Identifier: GPL-3.0-or-later
// What the user waits for at the keyboard, painting included: a letter that is completed, and Enter
// until all boxes are painted.
#include <benchmark/benchmark.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QTemporaryDir>

#include "app/common/text.h"
#include "app/program.h"
#include "bench/qt_application.h"

namespace odmiennik::app {
namespace {

class NoMessages final : public dictionary::MessageBoxes {
 public:
  dictionary::Button show(dictionary::MessageId /*id*/, Utf8View /*argument*/) override {
    return dictionary::Button::ok;
  }
};

// A program that has started in a folder of its own, its window on the screen.
class StartedProgram {
 public:
  StartedProgram() {
    store_.setTipShownAtStart(false);
    program_.start();
    QCoreApplication::processEvents();
  }

  [[nodiscard]] QLineEdit& entry() { return program_.window().boxes().entry(); }

  // One key down and up, and everything painted that it changes.
  void strike(int key, const QString& text) {
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&entry(), &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&entry(), &up);
    QCoreApplication::processEvents();
  }

 private:
  QTemporaryDir folder_;
  NoMessages messages_;
  UserStore store_{folder_.filePath(QStringLiteral("store.ini"))};
  Program program_{
      {.folder = toUtf8(folder_.path()), .messages = messages_, .store = store_, .end = [] {}}};
};

void letterWithCompletion(benchmark::State& state) {
  needApplication();
  StartedProgram program;
  for (auto _ : state) {
    state.PauseTiming();
    program.entry().setText(QStringLiteral("con"));
    QCoreApplication::processEvents();
    state.ResumeTiming();
    program.strike(Qt::Key_J, QStringLiteral("j"));
  }
  if (!program.entry().hasSelectedText()) state.SkipWithError("the letter was not completed");
}
BENCHMARK(letterWithCompletion)->Unit(benchmark::kMillisecond);

// Two verbs in turn, so that every box changes each time.
void enterUntilAllBoxesArePainted(benchmark::State& state) {
  needApplication();
  StartedProgram program;
  bool isFirst = false;
  for (auto _ : state) {
    state.PauseTiming();
    isFirst = !isFirst;
    program.entry().setText(isFirst ? QStringLiteral("aller") : QStringLiteral("se promener"));
    QCoreApplication::processEvents();
    state.ResumeTiming();
    program.strike(Qt::Key_Return, QStringLiteral("\r"));
  }
}
BENCHMARK(enterUntilAllBoxesArePainted)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace odmiennik::app
