// SPDX-License-Identifier: GPL-3.0-or-later
// The box that the user was last working in, with its caret and selection.
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include "app/main_window/form_boxes.h"

namespace odmiennik::app {

// Kept by the focus of the boxes. `boxes` outlives it.
class CurrentBox final : public QObject {
  Q_OBJECT

 public:
  explicit CurrentBox(const FormBoxes& boxes);

  // The slot of the box that last had the focus; at first that of the infinitive.
  [[nodiscard]] int index() const { return index_; }

  // Types `text` over the box's selection, or at its caret, as if the focus had never left it; a
  // locked box stays as it is.
  void insert(const QString& text);

  // Gives the focus back to the box.
  void focus() const;

  [[nodiscard]] bool isReadOnly() const { return field_ == nullptr && box().isReadOnly(); }

  // From now on `field` of another window is what is typed into, once it has had the focus and
  // until the user goes to a box. That the main window comes forward, as it does when one of its
  // buttons is clicked, is no such thing.
  void alsoServe(QLineEdit& field);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] FormBox& box() const { return boxes_[index_]; }
  bool noteField(QObject* watched, QEvent* event);
  void remember();
  void restoreSelection() const;

  const FormBoxes& boxes_;
  QPointer<QLineEdit> served_;  // the field of another window
  QPointer<QLineEdit> field_;   // the same, while it is what is typed into
  int index_ = engine::slot::kInfinitive;
  // What was selected when the focus left the box, which unselects it.
  QString text_;
  int selectionStart_ = -1;
  int selectionLength_ = 0;
};

}  // namespace odmiennik::app
