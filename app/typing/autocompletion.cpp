// SPDX-License-Identifier: GPL-3.0-or-later
// Completion of the entry box.
#include "app/typing/autocompletion.h"

#include "app/common/text.h"
#include "app/common/user_store.h"
#include "dictionary/verb_index.h"

namespace odmiennik::app {

Autocompletion::Autocompletion(FormBox& entry, QAction& item, UserStore& store)
    : entry_(entry), store_(store), switch_(store.isCompletionOn()) {
  item.setChecked(switch_.isOn());
}

void Autocompletion::invert() {
  switch_.invert();
  store_.setCompletionOn(switch_.isOn());
}

void Autocompletion::complete() {
  const std::string typed = toFrench(entry_.text());
  const EntryBox box{.text = typed,
                     .caret = static_cast<std::size_t>(entry_.cursorPosition()),
                     .selectionLength = static_cast<std::size_t>(entry_.selectedText().size()),
                     .isReadOnly = entry_.isReadOnly()};
  const auto completed = completedEntry(box, dictionary::completion);
  if (!completed) return;
  entry_.setReadOnly(true);  // no key lands in the half-updated text
  entry_.showForm(fromFrench(completed->text));
  // From the end back to the caret: the caret stays where the user types.
  entry_.setSelection(static_cast<int>(completed->selectionStart + completed->selectionLength),
                      -static_cast<int>(completed->selectionLength));
  entry_.setReadOnly(false);
}

}  // namespace odmiennik::app
