// SPDX-License-Identifier: GPL-3.0-or-later
// Today's norm where the program's own forms depart from it: what is known beside the rules.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "engine/flags.h"
#include "engine/norm_data.h"

namespace odmiennik::engine {

// The text of `identifier` as the norm has it: normTextOf(2041) -> "auraient"; most entries are the
// string table's own.
[[nodiscard]] std::string_view normTextOf(int identifier);

// The entries of the norm's own from `first` to before `last`, by identifier.
[[nodiscard]] std::span<const NormText> normTextsBetween(int first, int last);

// Of a verb that has both auxiliaries: whether its usual one is être ("tomber").
[[nodiscard]] bool isUsuallyWithEtre(std::string_view infinitive);

// What the norm knows of a reflexive verb, asked for by its infinitive without "se" ("agir"; with
// "en" or "y" where they belong to the verb, "en vouloir").
[[nodiscard]] bool isParticipleInvariable(std::string_view infinitive);
[[nodiscard]] bool isImpersonalReflexive(std::string_view infinitive);

// Of a verb without a pronoun: whether it has il and ils alone ("résulter").
[[nodiscard]] bool isOfThirdPersonOnly(std::string_view infinitive);

// Whether the form begins with a vowel that is a consonant to the ear: "iodle", "iodlais".
[[nodiscard]] bool isUnelided(std::string_view form);

// A participle in gender and number: "allé" -> "allé", "allée", "allés", "allées"; "assis" ->
// "assis", "assise", "assis", "assises"; "dû" -> "dû", "due", "dus", "dues". What stands before it
// stays: "est dissous" -> "est dissous", "est dissoute" and so on.
struct ParticipleForms {
  std::string masculine, feminine, masculines, feminines;
};
[[nodiscard]] ParticipleForms participleForms(std::string_view participle);

// A participle with être, as it is written for one, for several and where it may be either:
// "allé" -> "allé(e)", "allé(e)s", "allé(e)(s)"; "assis" -> "assis(e)", "assis(es)", "assis(e,
// es)"; "dû" -> "dû/due", "dus/dues", "dû/due(s)/dus"; "dissous" -> "dissous/-te", "dissous/-tes",
// "dissous/-te(s)".
struct AgreedParticiple {
  std::string one, several, either;
};
[[nodiscard]] AgreedParticiple agreed(std::string_view participle);

// The participle's box of a verb with être: "assis(e)" stays, "dû, due(e)" -> "dû, due",
// "dissous(e)" -> "dissous/dissoute".
[[nodiscard]] std::string agreedAlone(std::string_view participle);

}  // namespace odmiennik::engine
