// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the menu mnuWidok.
#pragma once

#include <QObject>

namespace odmiennik::app {

class ColourChooser;
class MainWindow;
class UserStore;

class ViewMenu final : public QObject {
  Q_OBJECT

 public:
  ViewMenu(MainWindow& window, ColourChooser& chooser, UserStore& store);

  void setOnTop(bool isOnTop);
  void showColours();
  void showNorm(bool isShown);

 private:
  MainWindow& window_;
  ColourChooser& chooser_;
  UserStore& store_;
};

}  // namespace odmiennik::app
