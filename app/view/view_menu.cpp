// SPDX-License-Identifier: GPL-3.0-or-later
// Always on top, and the colours.
#include "app/view/view_menu.h"

#include <QScreen>

#include "app/common/user_store.h"
#include "app/controls/main_menu.h"
#include "app/main_window/main_window.h"
#include "app/platform/platform.h"
#include "app/view/colour_window.h"

namespace odmiennik::app {
namespace {

Screen screenOf(const QWidget& window) {
  const QSize size = window.screen()->size() * kTwipsPerPixel;
  const double twipsPerPixel = kTwipsPerPixel / window.devicePixelRatioF();
  return {size.width(), size.height(), twipsPerPixel, twipsPerPixel};
}

engine::Variety varietyOf(bool isNorm) {
  return isNorm ? engine::Variety::norm : engine::Variety::system;
}

}  // namespace

ViewMenu::ViewMenu(MainWindow& window, ColourChooser& chooser, UserStore& store)
    : window_(window), chooser_(chooser), store_(store) {
  menuItem(*window.menuBar(), "mnuWidokNaWierzchu").setEnabled(platform::mayPlaceWindows());
  QAction& norm = menuItem(*window.menuBar(), "mnuWidokNorma");
  norm.setChecked(store.isNormShown());
  window_.setVariety(varietyOf(norm.isChecked()));
}

// The check mark is the item's own.
void ViewMenu::setOnTop(bool isOnTop) {
  platform::setAlwaysOnTop(window_.winId(), isOnTop, screenOf(window_));
}

void ViewMenu::showNorm(bool isShown) {
  store_.setNormShown(isShown);
  window_.setVariety(varietyOf(isShown));
}

void ViewMenu::showColours() { ColourWindow(window_.colours(), chooser_, &window_).exec(); }

}  // namespace odmiennik::app
