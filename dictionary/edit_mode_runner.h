// Carries out what edit mode asks for, over a window.
#pragma once

#include <string>
#include <string_view>

#include "dictionary/edit_mode.h"
#include "dictionary/messages.h"
#include "dictionary/user_record.h"

namespace odmiennik::dictionary {

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
  [[nodiscard]] virtual UserVerbRecord record() const = 0;
  // Writes it; says itself why when it cannot.
  [[nodiscard]] virtual bool write(const UserVerbRecord& record) = 0;
  // The infinitive that the conjugation belongs to, and that of the user's own record that it comes
  // from; the latter is empty when it comes from none.
  [[nodiscard]] virtual std::string shownInfinitive() const = 0;
  [[nodiscard]] virtual std::string storedInfinitive() const = 0;
  // Removes a record of the user's; says itself why when it cannot.
  [[nodiscard]] virtual bool remove(std::string_view infinitive) = 0;
  // Leads the user to the box of a form that cannot stay as it is.
  virtual void focusForm(int slot) = 0;
};

// Runs a command to its end, questions included. False when it stopped: whoever gave the command
// (the list, a close request) stops there too.
[[nodiscard]] bool runEditCommand(EditCommand command, EditMode& mode, EditWindow& window,
                                  MessageBoxes& messages);

}  // namespace odmiennik::dictionary
