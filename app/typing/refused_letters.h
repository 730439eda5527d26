// SPDX-License-Identifier: GPL-3.0-or-later
// Why a letter has not come: said at the box that did not take it.
#pragma once

#include <QObject>

#include "app/main_window/form_boxes.h"

namespace odmiennik::app {

// The sentence stands below the box until the next letter comes or the box is left.
class RefusedLetters final : public QObject {
  Q_OBJECT

 public:
  explicit RefusedLetters(const FormBoxes& boxes);

 private:
  void tell(const QString& letters);
};

}  // namespace odmiennik::app
