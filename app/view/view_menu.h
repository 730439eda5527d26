// The commands of the menu mnuWidok.
#pragma once

#include <QObject>

namespace odmiennik::app {

class ColourChooser;
class MainWindow;

class ViewMenu final : public QObject {
  Q_OBJECT

 public:
  ViewMenu(MainWindow& window, ColourChooser& chooser);

 private:
  void setOnTop(bool isOnTop);
  void showColours();

  MainWindow& window_;
  ColourChooser& chooser_;
};

}  // namespace odmiennik::app
