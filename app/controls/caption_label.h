// SPDX-License-Identifier: GPL-3.0-or-later
// A label of the main window.
#pragma once

#include <QLabel>

namespace odmiennik::app {

// A label that is too short for its text shows it in narrower letters: small ones keep whole pixels
// between them, and can need more room than in proportion.
class CaptionLabel final : public QLabel {
  Q_OBJECT

 public:
  // As it is designed, where its text fits: nothing is measured at the start of the program.
  CaptionLabel(const QString& text, const QRect& place, const QFont& font, QWidget* parent);

  // Plain text, not mark-up.
  void showText(const QString& text);

  // Marks the text as departing from today's norm, as a form's box does: a small corner behind it,
  // and for the screen reader `norm`, which tells what the norm is. Empty: no mark. Never on paper.
  void markDeparture(const QString& norm);

  // Where it stands, and the font of its letters at their natural width. A heading that is
  // underlined, as the link under the pointer, stays so.
  void stand(const QRect& place, const QFont& font);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void fit();
  [[nodiscard]] double textWidth() const;

  QFont natural_;
  bool isMarked_ = false;
};

}  // namespace odmiennik::app
