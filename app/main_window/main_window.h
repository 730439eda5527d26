// SPDX-License-Identifier: GPL-3.0-or-later
// The main window: a verb's whole conjugation at once.
#pragma once

#include <QMainWindow>

#include "app/controls/controls.h"
#include "app/controls/form_columns.h"
#include "app/layout/window_scaling.h"
#include "app/logic/norm_of_verb.h"
#include "app/main_window/auxiliary_box.h"
#include "app/main_window/form_boxes.h"
#include "app/main_window/live_colours.h"
#include "app/main_window/verb_information_view.h"
#include "engine/driver.h"

namespace odmiennik::app {

class FormSurface;

// What conjugates for the window: with messages; without, where a verb is shown once more; and what
// today's norm says of it. They outlive the window.
struct Conjugators {
  engine::Driver& driver;
  engine::Driver& silentDriver;
  NormOfVerb& norm;
};

// Assembled from its parts; holds the conjugation that it shows.
class MainWindow final : public QMainWindow {
  Q_OBJECT

 public:
  // `mayContinue` puts the question of a screen that is too small (layout/window_scaling.h).
  MainWindow(Conjugators conjugators, std::function<bool()> mayContinue);
  ~MainWindow() override;

  // Conjugates the entry box's text, shows it, and selects the text for the next verb; edit mode
  // has been left. A second conjugation while a message of the first is on the screen does nothing.
  void conjugate();

  // Fills the boxes with the conjugation of the entry box's text as the starting point of editing.
  void conjugateForEditing();

  // The forms that are asked for from now on; the shown verb is shown anew, unless it is edited.
  void setVariety(engine::Variety variety);

  // What today's norm has in the place of the form that a box shows (Windows-1252); empty where the
  // form does not depart, is the user's own, or is being edited.
  [[nodiscard]] std::string_view normOf(int slot) const;

  // The infinitive that the shown conjugation belongs to, Windows-1252.
  [[nodiscard]] std::string infinitive() const {
    return conjugation_.forms[engine::slot::kInfinitive];
  }

  // Whether the shown forms are the user's own, from the file of user verbs; and the infinitive of
  // their record, which may lack the reflexive prefix of the shown one.
  [[nodiscard]] bool isUsersOwn() const { return conjugation_.source == engine::Source::user; }
  [[nodiscard]] const std::string& storedInfinitive() const {
    return conjugation_.storedInfinitive;
  }

  // What is shown of the verb, and whether it is being edited.
  [[nodiscard]] const engine::Conjugation& conjugation() const { return conjugation_; }
  [[nodiscard]] bool isEditing() const { return isEditing_; }

  // Whether there are forms to be taken away: of a verb that has been conjugated, or is edited.
  [[nodiscard]] bool showsVerb() const;

  // The ground of the controls, with the pronouns on it.
  [[nodiscard]] FormSurface& surface() const { return surface_; }

  // The auxiliary that the user has set: 1 avoir, 0 être.
  [[nodiscard]] std::uint8_t auxiliary() const { return conjugation_.flags.auxiliary; }

  // Unlocks the boxes for editing, or locks them again.
  void setEditing(bool isEditing);

  // The window before the first verb: no forms, the pronouns of an empty table, nothing known, and
  // a word on how to begin.
  void showEmptyTable();

  // Shows the window in front, with the entry box's text selected.
  void goToEntry();

  // Says what is known of the shown verb, to the eye and to a screen reader.
  void tellInformation();

  // Puts the word that the window starts with into the entry box, selected.
  void selectEntryWord();

  [[nodiscard]] LiveColours& colours() { return colours_; }
  [[nodiscard]] WindowScaling& scaling() { return scaling_; }
  [[nodiscard]] const Controls& controls() const { return controls_; }
  [[nodiscard]] const FormBoxes& boxes() const { return boxes_; }

 signals:
  // A verb has been conjugated, or refused; not the word that resets the settings.
  void conjugated();
  // Another conjugation is shown, or what is shown can be edited from now on, or no longer.
  void shownChanged();
  // The user has chosen the auxiliary of the verb that is being edited.
  void auxiliaryEdited();

 private:
  void connectControls();
  void toggleAuxiliary(bool isAvoir);
  void showConjugation();
  [[nodiscard]] QString spokenInformation() const;
  void showDepartures();

  Conjugators conjugators_;
  engine::Conjugation conjugation_;
  bool isConjugating_ = false;
  bool isEditing_ = false;
  bool isAuxiliaryChosen_ = false;  // by a click on its box, for the verb that is shown
  FormSurface& surface_;
  Controls controls_;
  FormColumns columns_;
  LiveColours colours_;
  WindowScaling scaling_;
  FormBoxes boxes_;
  VerbInformationView information_;
  AuxiliaryBox auxiliary_;
};

}  // namespace odmiennik::app
