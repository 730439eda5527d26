// SPDX-License-Identifier: GPL-3.0-or-later
// The window frmZnajdź: which verb a form belongs to.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <functional>
#include <string>

#include "app/common/steady_window.h"
#include "finder/finder.h"

namespace odmiennik::app {

// Lists, while one types, what the form may be. `userVerbs` outlives it.
class FindWindow final : public SteadyWindow<> {
  Q_OBJECT

 public:
  // A reading has been chosen: conjugate the infinitive (Windows-1252) and go to the box.
  using Choose = std::function<void(const std::string& infinitive, int slot)>;

  // `mainWindow` is the parent and stays usable.
  FindWindow(dictionary::UserVerbsFile& userVerbs, Choose choose, QWidget* mainWindow);

  // Shows the window, not modal, with `word` in the field, or with what stands there already when
  // there is none; selected, so that another form can be typed at once.
  void showWith(const QString& word);

  [[nodiscard]] QLineEdit& field() const { return field_; }

  // Wide enough for all readings but the longest, where the screen is.
  [[nodiscard]] QSize sizeHint() const override;

 private:
  void furnish();
  void layOut();
  void search();
  void list();
  void choose();

  finder::Finder finder_;
  finder::Readings readings_;
  Choose choose_;
  QLineEdit& field_;
  QLabel& answer_;
  QListWidget& list_;
  QPushButton& conjugate_;
  QPushButton& close_;
};

}  // namespace odmiennik::app
