// SPDX-License-Identifier: GPL-3.0-or-later
// Completion of the infinitive.
#include "app/logic/entry_box.h"

namespace odmiennik::app {

std::optional<CompletedEntry> completedEntry(const EntryBox& box, Completion completion) {
  const std::size_t typed = box.text.size();
  const bool isCaretAtEnd = box.caret == typed && box.selectionLength == 0;
  if (box.isReadOnly || box.text.empty() || !isCaretAtEnd) return std::nullopt;
  const std::string_view verb = completion(box.text);
  if (verb.size() <= typed) return std::nullopt;
  return CompletedEntry{std::string(verb), typed, typed, verb.size() - typed};
}

}  // namespace odmiennik::app
