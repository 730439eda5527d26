// SPDX-License-Identifier: GPL-3.0-or-later
// Which places of a word fit a phrase, as readings.
#pragma once

#include "finder/candidate.h"
#include "finder/phrase.h"

namespace odmiennik::finder {

// Appends the readings of a simple form: "que nous allions" is no imparfait.
void appendSimple(const Phrase& phrase, const Candidate& word, Readings& readings);

// Appends the readings of a form of avoir or être with a participle behind it, where the verb has
// this auxiliary and the participle agrees: "je suis allées" is nothing.
void appendCompound(const Phrase& phrase, const Candidate& auxiliary, const Candidate& participle,
                    Readings& readings);

// Whether a verb makes compound tenses of others.
[[nodiscard]] bool isAuxiliary(const Candidate& word);

}  // namespace odmiennik::finder
