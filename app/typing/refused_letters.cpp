// SPDX-License-Identifier: GPL-3.0-or-later
// Letters that a box does not take.
#include "app/typing/refused_letters.h"

#include <QApplication>

#include "app/common/announcement.h"
#include "app/common/bubble.h"
#include "app/common/text.h"
#include "app/logic/hints.h"

namespace odmiennik::app {

// Queued: the letter's own event may change the text once more, which ends an older sentence.
RefusedLetters::RefusedLetters(const FormBoxes& boxes) {
  connect(boxes.letters(), &FrenchLetters::refused, this, &RefusedLetters::tell,
          Qt::QueuedConnection);
}

void RefusedLetters::tell(const QString& letters) {
  auto* box = qobject_cast<FormBox*>(QApplication::focusWidget());
  if (box == nullptr || box->isReadOnly()) return;
  const QString sentence = fromUtf8(refusalOf(toUtf8(letters)));
  showBubble(*box, sentence);
  announce(sentence);
  const auto hide = [box] { hideBubble(*box); };
  connect(box, &FormBox::textChanged, this, hide, Qt::SingleShotConnection);
  connect(box, &FormBox::left, this, hide, Qt::SingleShotConnection);
}

}  // namespace odmiennik::app
