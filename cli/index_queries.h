// SPDX-License-Identifier: GPL-3.0-or-later
// The questions to the verb index and the string table that need no conjugation.
#pragma once

#include <string>
#include <string_view>

namespace odmiennik::cli {

// Each appends its answer, a line each in UTF-8, and returns whether there was any.

// The verbs filed under a letter a to z or A to Z, in the index's order.
bool appendVerbsOfLetter(std::string& out, std::string_view letter);

// The verb that completes `prefix` (UTF-8), compared letter for letter.
bool appendCompletion(std::string& out, std::string_view prefix);

// The record of an infinitive (UTF-8), which is read as the entry box is: "  Se Laver" asks for
// "laver".
bool appendRecord(std::string& out, std::string_view infinitive);

// Every entry of the string table, raw: identifier, TAB, text, in ascending order.
bool appendStrings(std::string& out, std::string_view);

}  // namespace odmiennik::cli
