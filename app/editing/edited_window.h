// SPDX-License-Identifier: GPL-3.0-or-later
// The main window as edit mode sees it.
#pragma once

#include <QAction>

#include "app/controls/menu_table.h"
#include "app/logic/edit_mode.h"
#include "dictionary/user_verbs.h"

namespace odmiennik::app {

class MainWindow;
class WindowPointer;

// Name of the property that holds the marker of edit mode: "edit", or nothing.
inline constexpr char kTagProperty[] = "Tag";

class EditedWindow final : public EditWindow {
 public:
  EditedWindow(MainWindow& window, WindowPointer& pointer, dictionary::UserVerbsFile& userVerbs);

  [[nodiscard]] std::string entryText() const override;
  void setEntryText(std::string_view text) override;
  void clearBoxes() override;
  void present(const EditPresentation& presentation) override;
  void showHourglass(bool isShown) override;
  std::string conjugate() override;
  std::string conjugateForEditing() override;
  [[nodiscard]] dictionary::UserVerbRecord record() const override;
  [[nodiscard]] bool write(const dictionary::UserVerbRecord& record) override;
  [[nodiscard]] std::string shownInfinitive() const override;
  [[nodiscard]] std::string storedInfinitive() const override;
  [[nodiscard]] bool remove(std::string_view infinitive) override;
  void focusForm(int slot) override;

 private:
  [[nodiscard]] QAction& item(MenuItemName name) const;
  // What a screen reader says when edit mode has been entered or left.
  [[nodiscard]] QString spokenState(bool isEditing) const;

  MainWindow& window_;
  WindowPointer& pointer_;
  dictionary::UserVerbsFile& userVerbs_;
};

}  // namespace odmiennik::app
