// SPDX-License-Identifier: GPL-3.0-or-later
// A box of one form, and what may be typed into it.
#pragma once

#include <QLineEdit>
#include <QValidator>

namespace odmiennik::app {

// Lets through the letters of Windows-1252 only: "łabcé" becomes "abcé", typed or pasted. Nothing
// that could not be saved is ever entered, and no line break or tab either. A letter and the
// combining accent behind it are one letter, as texts from other systems have them.
class FrenchLetters final : public QValidator {
  Q_OBJECT

 public:
  using QValidator::QValidator;
  [[nodiscard]] State validate(QString& input, int& caret) const override;

 signals:
  // These letters and signs have not been let through; control characters go without a word.
  void refused(const QString& letters) const;
};

// A line edit that shows the beginning of its form. While it is read-only its text is what
// showForm() gave it: a program that writes into it nevertheless, as tools for the disabled can,
// finds it restored. What is selected stays selected while a menu is open.
class FormBox final : public QLineEdit {
  Q_OBJECT

 public:
  explicit FormBox(QWidget* parent);

  // Sets the text from its first letter on; a text that is there already costs nothing.
  void showForm(const QString& form);

  // The font of the box's letters at their natural width. The text margins follow its size.
  void setFormFont(const QFont& font);

  // How wide the letters may be, in percent, for the whole form to be seen: 100 where it fits, and
  // never less than can be read. A text that is being typed is not condensed.
  [[nodiscard]] int neededWidth() const;

  // Shows the form in letters of that width; 100 is that of the form's font.
  void setLetterWidth(int percent);

  // Marks the form as departing from today's norm: a small corner at the box's upper right edge,
  // and for the screen reader `norm`, which tells what the norm is. Empty: no mark. Never on paper.
  void markDeparture(const QString& norm);

  // Whether some of the text lies outside the box.
  [[nodiscard]] bool isClipped() const;

 signals:
  // A dead key or an input method has put `text` into the box.
  void committed(const QString& text);
  // The focus has gone to another control.
  void left();
  // The box has been made read-only, or can be typed into again.
  void lockChanged();
  // The form may need letters of another width.
  void fitChanged();

 protected:
  void focusOutEvent(QFocusEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void paintForPaper();
  void paintMark();
  [[nodiscard]] int room() const;
  void keepText(const QString& text);

  QString kept_;  // the text, for as long as the box is read-only
  bool isShowing_ = false;
  bool isMarked_ = false;
  QFont formFont_;
};

}  // namespace odmiennik::app
