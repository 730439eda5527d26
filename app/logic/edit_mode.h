// SPDX-License-Identifier: GPL-3.0-or-later
// Edit mode: its commands, and what they do to the window.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "app/logic/saving.h"
#include "dictionary/messages.h"
#include "engine/utf8.h"

namespace odmiennik::app {

// How the window looks in a state. Boxes other than the infinitive's are read-only unless
// `isEditing`; the menu item that saves is enabled exactly then.
struct EditPresentation {
  bool isEditing = false;
  Utf8View menuCaption;  // of mnuEdycjaEdytujCzasownik
  Utf8Text windowCaption;
};

// What edit mode needs of the main window. All texts are Windows-1252. The window tells
// EditMode::boxChanged of every change of a box's text, also of those made here.
class EditWindow {
 public:
  virtual ~EditWindow() = default;
  [[nodiscard]] virtual std::string entryText() const = 0;
  virtual void setEntryText(std::string_view text) = 0;
  virtual void clearBoxes() = 0;
  virtual void present(const EditPresentation& presentation) = 0;
  virtual void showHourglass(bool isShown) = 0;
  // Both conjugate the infinitive's box, fill the boxes and return the infinitive of slot 96.
  virtual std::string conjugate() = 0;
  virtual std::string conjugateForEditing() = 0;
  // The record of the boxes.
  [[nodiscard]] virtual dictionary::UserVerbRecord record() const = 0;
  // Writes it; says itself why when it cannot.
  [[nodiscard]] virtual bool write(const dictionary::UserVerbRecord& record) = 0;
  // The infinitive that the conjugation belongs to, and that of the user's own record that it comes
  // from; the latter is empty when it comes from none.
  [[nodiscard]] virtual std::string shownInfinitive() const = 0;
  [[nodiscard]] virtual std::string storedInfinitive() const = 0;
  // Removes a record of the user's; says itself why when it cannot.
  [[nodiscard]] virtual bool remove(std::string_view infinitive) = 0;
  // Leads the user to the box of a form that cannot stay as it is.
  virtual void focusForm(int slot) = 0;
};

// Each command asks first what becomes of unsaved changes. It returns false when it stopped, and
// whoever gave it (the list, a close request) stops there too: a save that is refused or fails
// loses nothing, since the state changes only once the record is written, or once the user has
// answered that the changes may go. While one command asks, no other starts.
class EditMode {
 public:
  // `captionAtStart` is the window's caption until edit mode is entered for the first time.
  EditMode(Utf8Text captionAtStart, EditWindow& window, dictionary::MessageBoxes& messages)
      : captionAtStart_(std::move(captionAtStart)), window_(window), messages_(messages) {}

  bool edit();       // enters edit mode, or leaves it like conjugate()
  bool newVerb();    // edit mode for a verb that is not shown yet
  bool save();       // only in edit mode
  bool conjugate();  // leaves edit mode first
  bool restore();    // gives up the user's own forms of the shown verb; not while a verb is edited
  [[nodiscard]] bool leaveForClosing();  // once the exit question has been answered

  // The window stays after all, though it has been asked to close: changes that were given up by an
  // answer No are changes again.
  void stay() { isGivenUp_ = false; }

  // A box's text has changed, whoever changed it. True asks to show the window's caption anew.
  bool boxChanged(std::string_view entryText);

  [[nodiscard]] bool isEditing() const { return isEditing_; }
  // Whether a command is under way.
  [[nodiscard]] bool isBusy() const { return isBusy_; }
  [[nodiscard]] EditPresentation presentation() const;

 private:
  enum class Changes { none, saved, kept };  // kept: the command stops

  // A command under way; another one that is given meanwhile may not run.
  class Turn {
   public:
    explicit Turn(bool& isBusy) : isBusy_(isBusy), mayRun_(!std::exchange(isBusy, true)) {}
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;
    ~Turn() {
      if (mayRun_) isBusy_ = false;
    }
    [[nodiscard]] bool mayRun() const { return mayRun_; }

   private:
    bool& isBusy_;
    bool mayRun_;
  };

  [[nodiscard]] bool hasUnsavedChanges() const { return isEditing_ && !isSaved_ && !isGivenUp_; }
  Changes settleChanges();
  bool saveNow();
  bool ask(dictionary::MessageId question, std::string_view infinitive);
  [[nodiscard]] bool mayBeWritten(const dictionary::UserVerbRecord& record);
  void enter(std::string_view infinitive);
  void leave();
  void filled(std::string_view infinitive);

  Utf8Text captionAtStart_;
  EditWindow& window_;
  dictionary::MessageBoxes& messages_;
  std::string infinitive_;  // as the caption shows it
  bool isEditing_ = false;
  bool isSaved_ = true;     // the boxes are what was last conjugated or saved
  bool isGivenUp_ = false;  // the changes, by an answer No: the question is not put again
  bool hasBeenLeft_ = false;
  bool isBusy_ = false;
};

}  // namespace odmiennik::app
