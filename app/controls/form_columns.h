// SPDX-License-Identifier: GPL-3.0-or-later
// The width of the letters in the columns of the table.
#pragma once

#include <QObject>
#include <vector>

namespace odmiennik::app {

class Controls;
class FormBox;

// A form that is too long for its box is shown in narrower letters. All such forms of a column
// (boxes that stand one below the other) share one width of letters, that of the longest, so that
// the column is calm; a form that fits keeps its natural letters. Follows every change of a form, a
// font, a size or a lock.
class FormColumns final : public QObject {
  Q_OBJECT

 public:
  explicit FormColumns(const Controls& controls);

  // While it lives nothing is fitted; then all is. For a change of the whole table.
  class Pause {
   public:
    explicit Pause(FormColumns& columns) : columns_(columns) { ++columns_.pauses_; }
    Pause(const Pause&) = delete;
    Pause& operator=(const Pause&) = delete;
    ~Pause();

   private:
    FormColumns& columns_;
  };

 private:
  using Column = std::vector<FormBox*>;
  void fit(const Column& column) const;

  std::vector<Column> columns_;
  int pauses_ = 0;
};

}  // namespace odmiennik::app
