// SPDX-License-Identifier: GPL-3.0-or-later
// Typing letters by clicking.
#include "app/typing/letter_buttons.h"

#include <QShortcut>

namespace odmiennik::app {

LetterButtons::LetterButtons(const Controls& controls, CurrentBox& current) : current_(current) {
  controls.forEach("cmdFrancuskaLitera", [this](const ControlRow&, QWidget& button) {
    connectButton(static_cast<QPushButton&>(button));
  });
  controls.forEach("chkFrancuskaLitera", [this](const ControlRow&, QWidget& box) {
    connectCheckBox(static_cast<QCheckBox&>(box));
  });
  connectKey(controls.get<QPushButton>(positionOf("cmdFrancuskaLitera", 0)));
}

void LetterButtons::connectKey(QPushButton& first) {
  auto* key = new QShortcut(QKeySequence(Qt::Key_F6), first.window());
  QObject::connect(key, &QShortcut::activated, &first, [&first] { first.setFocus(); });
}

void LetterButtons::connectButton(QPushButton& button) {
  button.setFocusPolicy(Qt::TabFocus);
  QObject::connect(&button, &QPushButton::clicked, &current_, [this, &button] {
    current_.insert(button.text());
    current_.focus();
  });
}

void LetterButtons::connectCheckBox(QCheckBox& box) {
  box.setFocusPolicy(Qt::TabFocus);
  QObject::connect(&box, &QCheckBox::toggled, &current_,
                   [this, &box](bool isTicked) { checkBoxClicked(box, isTicked); });
}

// deliberate: unticking the box raises the click once more, and it is that one which types.
void LetterButtons::checkBoxClicked(QCheckBox& box, bool isTicked) {
  if (isTicked)
    box.setChecked(false);
  else if (!current_.isReadOnly())
    current_.insert(box.text());
  current_.focus();
}

}  // namespace odmiennik::app
