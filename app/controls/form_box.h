// A box of one form, and what may be typed into it.
#pragma once

#include <QLineEdit>
#include <QValidator>

namespace odmiennik::app {

// Lets through the letters of Windows-1252 only: "łabcé" becomes "abcé", typed or pasted. Nothing
// that could not be saved is ever entered.
class FrenchLetters final : public QValidator {
 public:
  using QValidator::QValidator;
  [[nodiscard]] State validate(QString& input, int& caret) const override;
};

// A line edit that shows the beginning of its form, and the whole of it as a tooltip when it does
// not fit.
class FormBox final : public QLineEdit {
  Q_OBJECT

 public:
  using QLineEdit::QLineEdit;

  // Sets the text from its first letter on; a text that is there already costs nothing.
  void showForm(const QString& form);

  // Whether some of the text lies outside the box.
  [[nodiscard]] bool isClipped() const;

 protected:
  bool event(QEvent* event) override;
};

}  // namespace odmiennik::app
