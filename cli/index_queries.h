// SPDX-License-Identifier: GPL-3.0-or-later
// The questions to the verb index and the string table that need no conjugation.
#pragma once

#include "engine/utf8.h"

namespace odmiennik::cli {

// Each appends its answer, a line each in UTF-8, and returns whether there was any.

// The verbs that begin so (UTF-8), accents and case aside, in the index's order: "ete" ->
// "éteindre", "étendre" and more; all of them for the empty text.
bool appendVerbsBeginning(Utf8Text& out, Utf8View beginning);

// The verb that completes `prefix` (UTF-8), compared letter for letter.
bool appendCompletion(Utf8Text& out, Utf8View prefix);

// The record of an infinitive (UTF-8), which is read as the entry box is: "  Se Laver" asks for
// "laver".
bool appendRecord(Utf8Text& out, Utf8View infinitive);

// A header and a line for each slot of a conjugation: number, mood, tense, person, and the tense as
// `--tenses` takes it: "51\tSubjonctif\tprésent\tnous\tsubjonctif présent".
bool appendSlots(Utf8Text& out, Utf8View);

// Every entry of the string table, raw: identifier, TAB, text, in ascending order.
bool appendStrings(Utf8Text& out, Utf8View);

}  // namespace odmiennik::cli
