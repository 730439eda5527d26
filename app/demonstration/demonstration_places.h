// SPDX-License-Identifier: GPL-3.0-or-later
// Where on the screen a demonstration's places are, and how they are clicked.
#pragma once

#include <QMainWindow>
#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <optional>

#include "app/logic/demonstration_script.h"

class QComboBox;
class QDialog;

namespace odmiennik::app {

// A point of a widget.
struct DemonstrationTarget {
  QPointer<QWidget> widget;
  QPoint point;

  [[nodiscard]] QPoint onScreen() const { return widget->mapToGlobal(point); }
};

class DemonstrationPlaces {
 public:
  explicit DemonstrationPlaces(QMainWindow& window) : window_(window) {}

  // The point to go to; none while the place cannot be seen. An entry of a list is scrolled into
  // sight.
  [[nodiscard]] std::optional<DemonstrationTarget> find(DemonstrationPlace place) const;

  // The window of the verb list, whether it is shown or not; null before it was first opened.
  [[nodiscard]] QDialog* list() const;

 private:
  template <typename Widget>
  [[nodiscard]] Widget* ofList(const char* name) const;
  [[nodiscard]] std::optional<DemonstrationTarget> verbMenu() const;
  [[nodiscard]] std::optional<DemonstrationTarget> listItem() const;
  [[nodiscard]] std::optional<DemonstrationTarget> letter() const;
  [[nodiscard]] std::optional<DemonstrationTarget> verb() const;

  QMainWindow& window_;
};

}  // namespace odmiennik::app
