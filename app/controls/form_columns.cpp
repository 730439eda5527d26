// SPDX-License-Identifier: GPL-3.0-or-later
// Fitting of the forms to their boxes, column by column.
#include "app/controls/form_columns.h"

#include <algorithm>
#include <map>

#include "app/controls/controls.h"
#include "app/controls/form_box.h"

namespace odmiennik::app {
namespace {

constexpr int kNatural = 100;

}  // namespace

FormColumns::FormColumns(const Controls& controls) {
  std::map<int, Column> columns;  // by where they begin
  controls.forEach("txtCzasownik", [&](const ControlRow& row, QWidget& widget) {
    columns[row.left].push_back(static_cast<FormBox*>(&widget));
  });
  for (auto& [left, column] : columns) columns_.push_back(std::move(column));
  for (std::size_t index = 0; index < columns_.size(); ++index)
    for (const FormBox* box : columns_[index])
      connect(box, &FormBox::fitChanged, this, [this, index] {
        if (pauses_ == 0) fit(columns_[index]);
      });
}

void FormColumns::fit(const Column& column) const {
  std::vector<int> needed;
  for (const FormBox* box : column) needed.push_back(box->neededWidth());
  const int shared = *std::ranges::min_element(needed);
  for (std::size_t i = 0; i < column.size(); ++i)
    column[i]->setLetterWidth(needed[i] < kNatural ? shared : kNatural);
}

FormColumns::Pause::~Pause() {
  if (--columns_.pauses_ > 0) return;
  for (const Column& column : columns_.columns_) columns_.fit(column);
}

}  // namespace odmiennik::app
