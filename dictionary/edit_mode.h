// Edit mode: its two states, and what each command asks of the window.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace odmiennik::dictionary {

enum class EditCommand : std::uint8_t {
  edit,       // enters edit mode, or leaves it like `conjugate`
  newVerb,    // edit mode for a verb that is not shown yet
  save,       // only in edit mode
  conjugate,  // leaves edit mode first
  restore,    // gives up the user's own forms of the shown verb; not while a verb is edited
  close,      // of the main window, once the exit question has been answered
};

// What the window has to do, in the order given.
enum class EditStep : std::uint8_t {
  askToSave,         // the save question; its answer goes into goOn()
  refuseInfinitive,  // the message that a proper infinitive is needed
  askToRestore,      // the question about the shown verb's own forms; its answer goes into goOn()
  removeRecord,      // remove the shown verb's record; goOn() is told whether it is gone
  showShownInfinitive,  // put the shown verb's infinitive into its box
  writeRecord,          // write the boxes' record; goOn() is told whether it is on disk
  present,              // show presentation()
  showHourglass,        // as the pointer
  showPointer,          // the ordinary one
  conjugate,            // conjugate the infinitive's box and fill all boxes, then filled()
  conjugateForEditing,  // the same as the starting point of editing
  clearBoxes,           // remember the infinitive, trimmed, and empty all boxes
  restoreInfinitive,    // put the remembered one back into its box
};

enum class EditProgress : std::uint8_t {
  done,
  waiting,  // the command is not over: goOn() once the steps are done
  stopped,  // refused or failed: nothing has changed, and whatever gave the command ends with it
};

struct EditTurn {
  std::vector<EditStep> steps;
  EditProgress progress = EditProgress::done;
};

// How the window looks in a state. Boxes other than the infinitive's are read-only unless
// `isEditing`; the menu item that saves is enabled exactly then.
struct EditPresentation {
  bool isEditing = false;
  std::string_view menuCaption;  // of mnuEdycjaEdytujCzasownik
  std::string windowCaption;     // UTF-8
};

// Texts of boxes are Windows-1252. A save that is refused or fails loses nothing: the state changes
// only once the record is written, or once the user has answered that the changes may go. Example:
//   EditMode mode("Odmiennik v.1.0.12");
//   mode.begin(EditCommand::edit, "aller").steps  // ..., present, conjugateForEditing, ...
class EditMode {
 public:
  // The window's caption until edit mode is entered for the first time, UTF-8.
  explicit EditMode(std::string captionAtStart) : captionAtStart_(std::move(captionAtStart)) {}

  // Starts a command; `entryText` is the text of the infinitive's box. While another command waits
  // for its answer, nothing starts.
  [[nodiscard]] EditTurn begin(EditCommand command, std::string_view entryText);

  // Goes on after a turn that is `waiting`. `isYes`: the question was answered Yes, or the record
  // is written or removed.
  [[nodiscard]] EditTurn goOn(bool isYes, std::string_view entryText);

  // A box's text has changed, whoever changed it. True asks to show the window's caption anew.
  bool boxChanged(std::string_view entryText);

  // The program has filled the boxes with the conjugation of `infinitive` (slot 96).
  void filled(std::string_view infinitive);

  // The window stays after all, though it has been asked to close: changes that were given up by an
  // answer No are changes again.
  void stay() { isGivenUp_ = false; }

  [[nodiscard]] bool isEditing() const { return isEditing_; }
  // The tag of mnuEdycjaEdytujCzasownik.
  [[nodiscard]] std::string_view marker() const { return isEditing_ ? "edit" : ""; }
  // Whether the boxes are what was last conjugated or saved.
  [[nodiscard]] bool isSaved() const { return isSaved_; }
  [[nodiscard]] EditPresentation presentation() const;

 private:
  enum class Awaited : std::uint8_t { nothing, answer, record, conjugation, consent, removal };

  [[nodiscard]] bool hasUnsavedChanges() const { return isEditing_ && !isSaved_ && !isGivenUp_; }
  [[nodiscard]] EditTurn await(Awaited awaited, std::vector<EditStep> steps);
  [[nodiscard]] EditTurn save(std::string_view entryText);
  [[nodiscard]] EditTurn recordWritten();
  [[nodiscard]] EditTurn carryOut(std::string_view entryText);
  [[nodiscard]] EditTurn enter(std::string_view entryText);
  [[nodiscard]] EditTurn startNewVerb();
  [[nodiscard]] EditTurn leaveAndConjugate();

  std::string captionAtStart_;
  std::string infinitive_;  // as the caption shows it
  EditCommand command_ = EditCommand::conjugate;
  Awaited awaited_ = Awaited::nothing;
  bool isEditing_ = false;
  bool isSaved_ = true;
  bool isGivenUp_ = false;  // the changes, by an answer No: the question is not put again
  bool hasBeenLeft_ = false;
};

}  // namespace odmiennik::dictionary
