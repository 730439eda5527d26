// The main window: a verb's whole conjugation at once.
#pragma once

#include <QMainWindow>

#include "app/controls/controls.h"
#include "app/main_window/auxiliary_box.h"
#include "app/main_window/form_boxes.h"
#include "app/main_window/verb_information_view.h"
#include "engine/driver.h"

namespace odmiennik::app {

class FormSurface;

// Assembled from its parts; holds the conjugation that it shows. `driver` outlives it.
class MainWindow final : public QMainWindow {
  Q_OBJECT

 public:
  explicit MainWindow(engine::Driver& driver);
  ~MainWindow() override;

  // The Conjugate command: conjugates the entry box's text, shows it, and selects the text for the
  // next verb. A second command while a message of the first is on the screen does nothing.
  void conjugate();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void startWithEmptyTable();
  void connectCommands();
  void toggleAuxiliary(bool isAvoir);
  void showConjugation();
  void applyDesignColours();

  engine::Driver& driver_;
  engine::Conjugation conjugation_;
  bool isConjugating_ = false;
  FormSurface& surface_;
  Controls controls_;
  FormBoxes boxes_;
  VerbInformationView information_;
  AuxiliaryBox auxiliary_;
};

}  // namespace odmiennik::app
