// SPDX-License-Identifier: GPL-3.0-or-later
// Names.
#include "explainer/form_names.h"

#include <algorithm>

#include "engine/pronouns.h"
#include "formats/tense_name.h"

namespace odmiennik::explainer {

std::string withSubject(int slot, std::string_view form, const engine::EngineFlags& flags) {
  if (slot >= engine::kPersonalSlotCount) return std::string(form);
  const int person = slot % engine::kPersonCount;
  const bool isElided = engine::elides(form, flags.hAspirate, flags.variety);
  return std::string(engine::wholeSubject(person, isElided)).append(form);
}

// The pronoun is the one that stands before the box; "ns" and "vs" are said in full.
std::string phraseOf(const engine::Conjugation& conjugation, int slot) {
  const auto position = static_cast<std::size_t>(slot);
  const engine::Display& shown = conjugation.shown;
  if (shown.boxes[position] == engine::kShownMissing) return {};
  const std::string box(shown.boxes[position]);
  if (slot >= engine::kPersonalSlotCount) return box;
  const std::string_view pronoun = shown.pronouns[position];
  if (pronoun.ends_with('\'')) return std::string(pronoun) + box;
  return std::string(engine::wholeSubject(slot % engine::kPersonCount)) + box;
}

Utf8Text tenseName(int slot) { return formats::tenseName(engine::tenseOf(slot)); }

const ModelVerb* modelVerbOf(Utf8View model, bool isOfNorm) {
  const Utf8Text name = isOfNorm ? "norm " + Utf8Text(model) : Utf8Text(model);
  const auto* row = std::ranges::find(kModelVerbs, name, &ModelVerb::model);
  return row == std::end(kModelVerbs) ? nullptr : row;
}

}  // namespace odmiennik::explainer
