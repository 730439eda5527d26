// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that take conjugations out of the program: into a file, onto the clipboard.
#pragma once

#include <QObject>
#include <QPointer>

#include "app/exporting/file_question.h"
#include "app/logic/saved_list.h"
#include "engine/driver.h"

namespace odmiennik::app {

class MainWindow;
class SavingWindow;
class ShownAnswer;

// What mnuPlikZapiszOdmianę and mnuEdycjaKopiujOdmianę of `main`, which outlives it, do; they can
// be chosen while there is something to take.
class Exporting final : public QObject {
  Q_OBJECT

 public:
  // `driver` conjugates the verbs of lists, without a message.
  Exporting(MainWindow& main, engine::Driver& driver, dictionary::MessageBoxes& messages,
            disk::FileSystem& files);

  // Asks for a file and saves what the window shows. False when nothing was saved; why is told.
  bool save();

  void copy();

  // Asks for a file and saves the verbs of a list one after the other, in a window over `parent`
  // that shows how far it has come; for a part of the index it asks first whether all of it is
  // meant. One list at a time.
  void saveList(QWidget& parent, SavedList list);

 private:
  void offer();
  [[nodiscard]] bool hasInfinitive(const ShownAnswer& shown);
  // Nothing when the user gives up.
  [[nodiscard]] std::optional<SavedList> meantBy(SavedList list);
  void openSavingWindow(QWidget& parent, SavedList list, const SavedName& name);
  void tell(bool isSaved, const SavedName& name);

  MainWindow& main_;
  engine::Driver& driver_;
  dictionary::MessageBoxes& messages_;
  disk::FileSystem& files_;
  FileQuestion question_;
  QPointer<SavingWindow> saving_;
  bool isAsking_ = false;
};

}  // namespace odmiennik::app
