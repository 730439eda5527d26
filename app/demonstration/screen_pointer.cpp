// SPDX-License-Identifier: GPL-3.0-or-later
// Moving the pointer of the desktop.
#include "app/demonstration/screen_pointer.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include "app/platform/platform.h"

namespace odmiennik::app {
namespace {

// The place in the desktop's own pixels: a screen's corner stays, what is in it is scaled.
bool moveSystemPointer(QPoint place) {
  const QScreen* screen = QGuiApplication::screenAt(place);
  if (screen == nullptr) return false;
  const QPoint corner = screen->geometry().topLeft();
  const QPoint pixels = corner + (place - corner) * screen->devicePixelRatio();
  return platform::movePointer(pixels.x(), pixels.y());
}

}  // namespace

ScreenPointer systemPointer() {
  return {.position = [] { return QCursor::pos(); }, .moveTo = moveSystemPointer};
}

}  // namespace odmiennik::app
