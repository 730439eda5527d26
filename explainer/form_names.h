// SPDX-License-Identifier: GPL-3.0-or-later
// What forms, tenses and models are called in an explanation.
#pragma once

#include <string>
#include <string_view>

#include "engine/conjugation.h"
#include "explainer/explanation.h"

namespace odmiennik::explainer {

// `form` of a slot with its subject pronoun in full: (3, "mangeons") -> "nous mangeons"; what has
// no subject is the form alone.
[[nodiscard]] std::string withSubject(int slot, std::string_view form,
                                      const engine::EngineFlags& flags);

// The slot's form as it is shown, with its pronoun; empty where the verb has none.
[[nodiscard]] std::string phraseOf(const engine::Conjugation& conjugation, int slot);

// "présent", "subjonctif imparfait": what a tense is called beside the others.
[[nodiscard]] Utf8Text tenseName(int slot);

// The row of a model of the rules or, `isOfNorm`, of the norm; nothing where it has none.
[[nodiscard]] const ModelVerb* modelVerbOf(Utf8View model, bool isOfNorm);

}  // namespace odmiennik::explainer
