// SPDX-License-Identifier: GPL-3.0-or-later
// The main window's table of controls, and how its rows are found.
#pragma once

#include <cstddef>
#include <span>
#include <type_traits>

#include "data/main_window.h"
#include "engine/utf8.h"

class QAbstractButton;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

namespace odmiennik::app {

class CaptionLabel;
class FormBox;

// All controls of the main window in tab order; row 0 is the window itself.
[[nodiscard]] constexpr std::span<const ControlRow> mainWindowRows() { return kMainWindow; }

void noSuchControl();  // not constexpr: reached, it is the error told

// The row of a control; a control that is not in the table does not compile:
// positionOf("txtCzasownik", 96).
[[nodiscard]] consteval std::size_t positionOf(Utf8View name, int index = -1) {
  for (std::size_t position = 0; position < mainWindowRows().size(); ++position)
    if (kMainWindow[position].name == name && kMainWindow[position].index == index) return position;
  noSuchControl();
  return 0;
}

// The class of a position's widget is known while compiling.
template <typename Widget, typename... Classes>
inline constexpr bool kIsAnyOf = (std::is_same_v<Widget, Classes> || ...);

template <typename Widget>
constexpr bool isMadeInto(ControlKind kind) {
  switch (kind) {
    case ControlKind::label:
      return kIsAnyOf<Widget, QWidget, QLabel, CaptionLabel>;
    case ControlKind::textBox:
      return kIsAnyOf<Widget, QWidget, QLineEdit, FormBox>;
    case ControlKind::button:
      return kIsAnyOf<Widget, QWidget, QAbstractButton, QPushButton>;
    case ControlKind::checkBox:
      return kIsAnyOf<Widget, QWidget, QAbstractButton, QCheckBox>;
    case ControlKind::frame:
      return kIsAnyOf<Widget, QWidget, QGroupBox>;
    default:
      return false;
  }
}

// The position of a control that is a `Widget`; that of another one does not compile:
// ControlAt<QCheckBox>(positionOf("chkZAvoir")).
template <typename Widget>
class ControlAt {
 public:
  consteval ControlAt(std::size_t position) : position_(position) {
    if (!isMadeInto<Widget>(kMainWindow[position].kind)) controlOfAnotherClass();
  }

  [[nodiscard]] constexpr std::size_t position() const { return position_; }

 private:
  static void controlOfAnotherClass();  // not constexpr: reached, it is the error told

  std::size_t position_;
};

// How many controls have the name: countOf("txtCzasownik") -> 101.
[[nodiscard]] constexpr int countOf(Utf8View name) {
  int count = 0;
  for (const ControlRow& row : mainWindowRows()) count += row.name == name ? 1 : 0;
  return count;
}

}  // namespace odmiennik::app
