// SPDX-License-Identifier: GPL-3.0-or-later
// A program that demonstrates itself without a pause, with a pointer that is only written down.
#pragma once

#include <QDialog>

#include "app/demonstration/demonstration.h"
#include "tests/window/edited_program.h"

namespace odmiennik::window_test {

// In milliseconds; a demonstration that is sped up takes far less.
inline constexpr int kDemonstrationLimit = 20000;

// A pointer that is only written down, or that cannot be moved.
struct WrittenPointer {
  bool isMovable = true;
  QPoint place{5, 6};
  std::vector<QPoint> path;

  app::ScreenPointer port() {
    return {.position = [this] { return place; },
            .moveTo =
                [this](QPoint to) {
                  if (!isMovable) return false;
                  path.push_back(place = to);
                  return true;
                }};
  }
};

struct DemonstratedProgram : EditedProgram {
  DemonstratedProgram() { runner.setPace(0); }

  // The verb list; null before it has been opened.
  [[nodiscard]] QDialog* list() const {
    return window.findChild<QDialog*>(QStringLiteral("frmLista"));
  }

  void toItsEnd(int way) {
    runner.run(way);
    QVERIFY(runner.isRunning());
    QTRY_VERIFY_WITH_TIMEOUT(!runner.isRunning(), kDemonstrationLimit);
  }

  void verifyAtRest() const {
    for (const char* name : {"timCzas", "timCzas2", "timCzasClick", "timCzasLiterki"}) {
      const auto timers = window.findChildren<QTimer*>(QLatin1String(name));
      QVERIFY2(!timers.isEmpty(), name);
      for (const QTimer* timer : timers) QVERIFY2(!timer->isActive(), name);
    }
    QVERIFY(list() == nullptr || !list()->isVisible());
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    QCOMPARE(pointer.place, QPoint(5, 6));
  }

  WrittenPointer pointer;
  app::DemonstrationRunner runner{
      window, program.editing(),
      [this](bool isSuspended) { program.typing().suspendCompletion(isSuspended); },
      pointer.port()};
};

}  // namespace odmiennik::window_test
