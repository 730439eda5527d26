// SPDX-License-Identifier: GPL-3.0-or-later
// How the builders write: into a form table alone, or into one whose trace is kept. A builder is a
// template of the table, and what it writes is what is noted. For a table without a trace every
// note is nothing: no instruction is left of it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "engine/form_table.h"
#include "engine/trace.h"

namespace odmiennik::engine {

// A form table together with the trace of it. A view: both outlive it.
class TracedForms {
 public:
  TracedForms(FormTable& forms, Trace& trace) : forms_(forms), trace_(trace) {}

  [[nodiscard]] std::string& operator[](int slot) const { return forms_[slot]; }
  [[nodiscard]] bool isPlaceholder(int slot) const { return forms_.isPlaceholder(slot); }
  void clear() const { forms_.clear(); }
  [[nodiscard]] FormTable& table() const { return forms_; }
  [[nodiscard]] Trace& trace() const { return trace_; }

 private:
  FormTable& forms_;
  Trace& trace_;
};

[[nodiscard]] inline FormTable& tableOf(FormTable& forms) { return forms; }
[[nodiscard]] inline FormTable& tableOf(TracedForms& forms) { return forms.table(); }

// A piece that is to be written.
struct Part {
  PieceKind kind;
  std::string_view text;
};
[[nodiscard]] constexpr Part whole(std::string_view text) { return {PieceKind::whole, text}; }
[[nodiscard]] constexpr Part stem(std::string_view text) { return {PieceKind::stem, text}; }
[[nodiscard]] constexpr Part ending(std::string_view text) { return {PieceKind::ending, text}; }

// Sets the slot to the parts in a row; none of them may be a view of the slot.
template <typename... Parts>
void put(FormTable& forms, int slot, const Parts&... parts) {
  setTo(forms[slot], parts.text...);
}
template <typename... Parts>
void put(TracedForms& forms, int slot, const Parts&... parts) {
  setTo(forms[slot], parts.text...);
  forms.trace().begin(slot);
  (forms.trace().add(slot, parts.kind, parts.text), ...);
}

// Sets the slot to one text: a copy, which may be of a slot.
inline void copy(FormTable& forms, int slot, std::string_view text) { forms[slot].assign(text); }
inline void copy(TracedForms& forms, int slot, std::string_view text) {
  forms[slot].assign(text);
  forms.trace().begin(slot);
  forms.trace().add(slot, PieceKind::whole, forms[slot]);
}

// Empties the slot, for pieces that are appended one by one.
inline void beginForm(FormTable& forms, int slot) { forms[slot].clear(); }
inline void beginForm(TracedForms& forms, int slot) {
  forms[slot].clear();
  forms.trace().begin(slot);
}

inline void append(FormTable& forms, int slot, const Part& part) { forms[slot].append(part.text); }
inline void append(TracedForms& forms, int slot, const Part& part) {
  forms[slot].append(part.text);
  forms.trace().add(slot, part.kind, part.text);
}

// Puts a part into the form, before its letter `at`.
inline void insert(FormTable& forms, int slot, std::size_t at, const Part& part) {
  forms[slot].insert(at, part.text);
}
inline void insert(TracedForms& forms, int slot, std::size_t at, const Part& part) {
  forms[slot].insert(at, part.text);
  forms.trace().insert(slot, at, part.kind, part.text);
}

// Takes letters off the form's end.
inline void shorten(FormTable& forms, int slot, std::size_t count) {
  forms[slot].resize(forms[slot].size() - count);
}
inline void shorten(TracedForms& forms, int slot, std::size_t count) {
  forms[slot].resize(forms[slot].size() - count);
  forms.trace().shorten(slot, count);
}

// Takes a form away that the verb has not.
inline void lose(FormTable& forms, int slot, Lack) { forms[slot].clear(); }
inline void lose(TracedForms& forms, int slot, Lack lack) {
  forms[slot].clear();
  forms.trace().lose(slot, lack);
}

// The participle's box with être, as the norm writes it.
inline void replaceParticiple(FormTable& forms, std::string text) {
  forms[slot::kPastParticiple] = std::move(text);
}
void replaceParticiple(TracedForms& forms, std::string_view text);

// The verb's record or table entry has been copied into the slots.
inline void noteStored(FormTable&, Maker) {}
inline void noteStored(TracedForms& forms, Maker maker) {
  for (int slot = 0; slot < kSlotCount; ++slot) {
    forms.trace().beginStep({}, false, false);
    forms.trace().makeAs(maker);
    copy(forms, slot, std::string(forms[slot]));
  }
}

inline void noteClaim(FormTable&, std::string_view, Utf8View, bool = false, bool = false) {}
inline void noteClaim(TracedForms& forms, std::string_view ending, Utf8View model,
                      bool isOfNorm = false, bool isWholeVerb = false) {
  forms.trace().claim({std::string(ending), model, isWholeVerb}, isOfNorm);
}

// A step begins; what was known of the step before is over.
inline void noteStep(FormTable&, Utf8View, bool, bool) {}
inline void noteStep(TracedForms& forms, Utf8View model, bool isOfNorm, bool isListed) {
  forms.trace().beginStep(model, isOfNorm, isListed);
}

// What is written next starts from the form of `from` less `cut` letters.
inline void noteOrigin(FormTable&, int, std::size_t = 0, std::string_view = {}) {}
inline void noteOrigin(TracedForms& forms, int from, std::size_t cut = 0,
                       std::string_view added = {}) {
  forms.trace().startFrom(
      {from, cut, from == kNoSlot ? std::string() : forms[from], std::string(added)});
}

inline void noteMaker(FormTable&, Maker) {}
inline void noteMaker(TracedForms& forms, Maker maker) { forms.trace().makeAs(maker); }

// What the box of a slot shows: the form, or a view of a part of it.
inline void noteShown(FormTable&, int, std::string_view) {}
inline void noteShown(TracedForms& forms, int slot, std::string_view shown) {
  const std::string& form = forms[slot];
  if (form.empty()) return forms.trace().show(slot, 0, 0);
  forms.trace().show(slot, static_cast<std::size_t>(shown.data() - form.data()), shown.size());
}

// The participle behind an auxiliary: `tail` is a blank and the participle as it agrees, `base` the
// participle as it is stored, with "(e)" or without.
inline void putCompound(FormTable& forms, int slot, std::string_view auxiliary, int,
                        std::string_view tail, std::string_view) {
  setTo(forms[slot], auxiliary, tail);
}
void putCompound(TracedForms& forms, int slot, std::string_view auxiliary, int auxiliaryForm,
                 std::string_view tail, std::string_view base);

}  // namespace odmiennik::engine
