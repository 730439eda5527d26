// SPDX-License-Identifier: GPL-3.0-or-later
// The widgets of the main window, built from its table.
#pragma once

#include <QWidget>
#include <vector>

#include "app/controls/control_table.h"
#include "engine/utf8.h"

namespace odmiennik::app {

class Controls {
 public:
  // Creates a widget for every row that has one, as children of `surface`.
  explicit Controls(QWidget& surface);
  Controls(const Controls&) = delete;
  Controls& operator=(const Controls&) = delete;

  // The control of a position: get<QCheckBox>(positionOf("chkZAvoir")). A class that the control is
  // not of does not compile.
  template <typename Widget>
  [[nodiscard]] Widget& get(ControlAt<Widget> control) const {
    return *static_cast<Widget*>(widgets_[control.position()]);
  }

  // The widget of a row; none for the window, shapes and lines.
  [[nodiscard]] QWidget* widgetAt(std::size_t position) const { return widgets_[position]; }

  // The row that the widget was built from; none for any other widget.
  [[nodiscard]] const ControlRow* rowOf(const QWidget& widget) const;

  // The widgets of an array, or the control of that name, in the table's order.
  template <typename Visitor>
  void forEach(Utf8View name, Visitor visit) const {
    for (std::size_t position = 0; position < widgets_.size(); ++position)
      if (kMainWindow[position].name == name) visit(kMainWindow[position], *widgets_[position]);
  }

 private:
  std::vector<QWidget*> widgets_;  // by position; none for the window, shapes and lines
};

}  // namespace odmiennik::app
