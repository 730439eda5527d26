// SPDX-License-Identifier: GPL-3.0-or-later
// Screens, panels and frames.
#include "app/layout/screen_room.h"

#include <QLayout>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include "app/platform/platform.h"

namespace odmiennik::app {
namespace {

// Thin edges and a title bar; under Wayland those that Qt draws itself.
constexpr QSize kLikelyFrame(2, 28);
constexpr QSize kFrameOfQt(6, 33);

// Desktops of today have panels of 32 to 44 pixels.
constexpr int kLikelyPanel = 44;

}  // namespace

QSize frameOf(const QWidget& window) {
  const QWindow* native = window.windowHandle();
  const QMargins frame = native == nullptr ? QMargins() : native->frameMargins();
  if (!frame.isNull()) return QSize(0, 0).grownBy(frame);
  return platform::mayPlaceWindows() ? kLikelyFrame : kFrameOfQt;
}

QSize availableSize(const QWidget& window) {
  const QScreen& screen = *window.screen();
  const QSize available = screen.availableSize();
  if (platform::mayPlaceWindows() || available != screen.size()) return available;
  return available - QSize(0, kLikelyPanel);
}

QSize screenRoom(const QWidget& window) { return availableSize(window) - frameOf(window); }

void drawTogether(QWidget& window) {
  constexpr int kGap = 2;
  if (window.sizeHint().height() <= screenRoom(window).height()) return;
  for (QLayout* layout : window.findChildren<QLayout*>()) {
    layout->setSpacing(kGap);
    layout->setContentsMargins(kGap, kGap, kGap, kGap);
  }
  const QWidget* framed = &window;
  while (framed->parentWidget() != nullptr) framed = framed->parentWidget()->window();
  const QPoint inside = framed->geometry().topLeft() - framed->frameGeometry().topLeft();
  window.move(window.screen()->availableGeometry().topLeft() + inside);
}

}  // namespace odmiennik::app
