// SPDX-License-Identifier: GPL-3.0-or-later
// The list of verbs.
#include "app/list/verb_list_box.h"

#include <QAccessible>
#include <QFocusEvent>
#include <QScrollBar>
#include <QTimer>

namespace odmiennik::app {

void VerbListBox::showInUpperThird(int entry) {
  constexpr int kPartAbove = 6;
  setCurrentRow(entry);
  verticalScrollBar()->setValue(entry - verticalScrollBar()->pageStep() / kPartAbove);
}

// Qt tells a screen reader that the list has the focus, but not which of its verbs.
void VerbListBox::focusInEvent(QFocusEvent* event) {
  QListWidget::focusInEvent(event);
  QTimer::singleShot(0, this, [this] {
    if (!hasFocus() || currentRow() < 0) return;
    QAccessibleEvent focused(this, QAccessible::Focus);
    focused.setChild(currentRow());
    QAccessible::updateAccessibility(&focused);
  });
}

}  // namespace odmiennik::app
