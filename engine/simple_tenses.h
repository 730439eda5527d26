// SPDX-License-Identifier: GPL-3.0-or-later
// The builders of the simple tenses: stem and endings, written into fixed slots.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "engine/noting.h"

namespace odmiennik::engine {

// `Forms` is a FormTable, or TracedForms, where each form is noted with what it was made of.
// A stem or base handed to a builder must not be a view of a slot that the builder writes.

// Slots 6-11: "parl" -> parlais … parlaient.
template <typename Forms>
void buildImperfect(Forms& forms, std::string_view stem);

// Slots 18-23: "parler" -> parlerai … parleront.
template <typename Forms>
void buildFuture(Forms& forms, std::string_view stem);

// Slots 90-92 from slots 1, 3, 4; an s after e, ë or é is dropped: parles -> parle, but vas -> vas.
template <typename Forms>
void buildImperative(Forms& forms);

// Slots 48-53 from slot 5, its variants one by one, and from slots 9 and 10 (nous and vous are the
// imperfect's): payent/paient -> paye/paie.
template <typename Forms>
void buildPresentSubjunctive(Forms& forms);

// Slots 72-77 from slot 18, its variants one by one: assiérai/assoirai -> assiérais/assoirais. An
// empty slot 18 leaves them as they are.
template <typename Forms>
void buildConditional(Forms& forms);

// The endings of the passé simple: -ai, -is or -us.
enum class PastEndings : std::uint8_t { a = 1, i = 2, u = 3 };

// Slots 12-17. Without `endings`: -ai for an infinitive in "er", -is for any other. Without `base`:
// the infinitive less two letters.
template <typename Forms>
void buildPastHistoric(Forms& forms, std::optional<PastEndings> endings = std::nullopt,
                       std::optional<std::string_view> base = std::nullopt);

// Slot 98 from slot 3: parlons -> parlant; an empty slot 3 leaves it as it is.
template <typename Forms>
void buildPresentParticiple(Forms& forms);

// Slots 54-59 from slots 12 and 15: parlai, parlâmes -> parlasse … parlât. An empty slot 12 leaves
// them as they are.
template <typename Forms>
void buildImperfectSubjunctive(Forms& forms);

}  // namespace odmiennik::engine
