// SPDX-License-Identifier: GPL-3.0-or-later
// Subject and reflexive pronouns, and the elision that both follow.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "engine/flags.h"
#include "engine/noting.h"

namespace odmiennik::engine {

// Whether a pronoun elides before `form`: it begins with one of "aâèéeêioôuy", or with an h that is
// not aspirated. Capitals, à, î, û, ë, ï and œ do not elide. In the norm œ does, y only before
// a consonant, and i but where it is heard as one: j'œuvre, j'ypérite, je yodle, je iodle.
[[nodiscard]] bool elides(std::string_view form, bool hAspirate, Variety variety = Variety::system);

// Why a pronoun elides before a form, or why not where one might expect it.
enum class Elision : std::uint8_t {
  none,        // a consonant
  vowel,       // elides
  muteH,       // elides
  aspiratedH,  // stays whole
  glide,       // stays whole: a vowel that is heard as a consonant, of the norm
};

// The reason of elides(), found by the same tests: "habite" -> muteH.
[[nodiscard]] Elision elisionBefore(std::string_view form, bool hAspirate, Variety variety);

// A person's subject in full, as it stands before a form: wholeSubject(3) -> "nous ",
// wholeSubject(0, true) -> "j'".
[[nodiscard]] constexpr std::string_view wholeSubject(int person, bool isElided = false) {
  constexpr std::string_view kSubjects[] = {"je ", "tu ", "il ", "nous ", "vous ", "ils "};
  return isElided && person == 0 ? "j'" : kSubjects[person];
}

// Writes reflexive pronouns into the table: "laves" -> "te laves", "lave" -> "lave-toi", "laver" ->
// "se laver". The impératif passé becomes empty; slot 99, "*", empty slots and slots that already
// have their pronoun stay as they are.
template <typename Forms>
void addReflexivePronouns(Forms& forms, bool hAspirate);

// The same in the norm: either half of a double imperative has its pronoun,
// "assois-toi/assieds-toi", and "en" or "y" stands behind the pronoun: "m'en vais", "va-t'en",
// "s'en aller".
template <typename Forms>
void addReflexivePronounsOfNorm(Forms& forms, const EngineFlags& flags);

namespace detail {

// Whether `form` may carry a reflexive pronoun: "m'", "me ", "nous " and their like stand before
// it, the imperative's behind a hyphen. A glance that settles most forms.
[[nodiscard]] inline bool mayCarryReflexive(int slot, std::string_view form) {
  const bool isImperative = slot >= slot::kImperative && slot < slot::kPastImperative;
  if (isImperative && form.find('-') != std::string_view::npos) return true;
  if (form.size() < 3) return form.size() == 2 && form[1] == '\'';
  if (form[1] == 'e') return form[2] == ' ';
  if (form[1] == 'o') return (form[0] == 'n' || form[0] == 'v') && form[2] == 'u';
  return form[1] == '\'';
}

[[nodiscard]] std::string_view withoutReflexiveLookedFor(int slot, std::string_view form);

}  // namespace detail

// The form of `slot` without the reflexive pronoun that it carries, as a view of `form`:
// (0, "me lave") -> "lave", (90, "lave-toi") -> "lave", (96, "se laver") -> "laver". An "en" or "y"
// behind the imperative's pronoun goes with it: (90, "va-t'en") -> "va".
[[nodiscard]] inline std::string_view withoutOwnReflexive(int slot, std::string_view form) {
  return detail::mayCarryReflexive(slot, form) ? detail::withoutReflexiveLookedFor(slot, form)
                                               : form;
}

using SubjectPronouns = std::array<std::string_view, kPersonalSlotCount>;
using SubjunctiveCaptions = std::array<std::string_view, 4>;

// "je" or "j'", "tu", "il", "ns", "vs", "ils" for slots 0 to 89, without a blank behind them.
void chooseSubjectPronouns(const FormTable& forms, bool hAspirate, SubjectPronouns& pronouns,
                           Variety variety = Variety::system);

// The captions above the subjunctive blocks: "Il faut que ...", for falloir "Il ne crois pas que
// ...".
void chooseSubjunctiveCaptions(const FormTable& forms, SubjunctiveCaptions& captions,
                               Variety variety = Variety::system);

}  // namespace odmiennik::engine
