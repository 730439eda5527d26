// SPDX-License-Identifier: GPL-3.0-or-later
// A form with what is said before it.
#include "formats/phrase.h"

#include "formats/printable.h"
#include "formats/text_layout.h"

namespace odmiennik::formats {
namespace {

constexpr bool isSubjunctive(int slot) {
  return slot >= engine::slot::kPresentSubjunctive && slot < engine::slot::kPresentConditional;
}

// The window shortens two of the subjects.
Utf8View inFull(std::string_view pronoun) {
  if (pronoun == "ns") return "nous";
  if (pronoun == "vs") return "vous";
  return asUtf8(pronoun);  // the others are plain ASCII
}

}  // namespace

void appendPhrase(Utf8Text& out, const engine::Display& shown, int slot) {
  const Cell cell = cellOf(shown, slot);
  if (cell.isMissing()) return;
  const Utf8View subject = inFull(cell.pronoun);
  if (isSubjunctive(slot)) out.append(subject.starts_with('i') ? "qu'" : "que ");
  out.append(subject);
  if (cell.hasBlank()) out.push_back(' ');
  appendPrintable(out, cell.form);
}

}  // namespace odmiennik::formats
