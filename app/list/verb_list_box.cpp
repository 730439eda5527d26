// The list of verbs.
#include "app/list/verb_list_box.h"

#include <QScrollBar>

namespace odmiennik::app {

void VerbListBox::showInUpperThird(int entry) {
  constexpr int kPartAbove = 6;
  setCurrentRow(entry);
  verticalScrollBar()->setValue(entry - verticalScrollBar()->pageStep() / kPartAbove);
}

}  // namespace odmiennik::app
