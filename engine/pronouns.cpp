// SPDX-License-Identifier: GPL-3.0-or-later
// Subject and reflexive pronouns.
#include "engine/pronouns.h"

#include <type_traits>

#include "engine/french.h"
#include "engine/norm.h"
#include "engine/normalization.h"
#include "engine/string_table.h"

namespace odmiennik::engine {
namespace {

// Which letters elide, as a table of 256 so that the test is one look-up a form.
constexpr std::array<bool, 256> kIsVowel = [] {
  std::array<bool, 256> isVowel{};
  for (const char vowel : "aâèéeêioôuy"_fr) isVowel[static_cast<unsigned char>(vowel)] = true;
  return isVowel;
}();

bool isVowel(char letter) { return kIsVowel[static_cast<unsigned char>(letter)]; }

// deliberate: ns and vs are abbreviated, the other persons are not.
constexpr std::string_view kSubjects[kPersonCount] = {"je", "tu", "il", "ns", "vs", "ils"};
constexpr std::string_view kElidedJe = "j'";

std::string_view reflexiveOf(int slot, bool elided) {
  const int first = elided ? text_id::kElidedReflexive : text_id::kReflexive;
  return textOf(first + slot % kPersonCount);
}

std::string_view encliticOf(int slot) {
  return textOf(text_id::kEnclitic + slot - slot::kImperative);
}

// Behind the pronoun, "en" and "y" may stand, before which "toi" is "t'": va-t'en, allons-nous-en.
constexpr std::string_view kEncliticsBeforeAdverb[][2] = {
    {"-t'en", "-t'y"}, {"-nous-en", "-nous-y"}, {"-vous-en", "-vous-y"}};

std::string_view withoutEnclitic(int slot, std::string_view form) {
  if (form.ends_with(encliticOf(slot))) return less(form, encliticOf(slot).size());
  for (const std::string_view enclitic : kEncliticsBeforeAdverb[slot - slot::kImperative])
    if (form.ends_with(enclitic)) return less(form, enclitic.size());
  return form;
}

constexpr bool isPersonal(int slot) { return slot < kPersonalSlotCount; }
constexpr bool isImperative(int slot) {
  return slot >= slot::kImperative && slot < slot::kPastImperative;
}

bool takesReflexive(int slot, const std::string& form) {
  return !form.empty() && form != kPlaceholder &&
         withoutOwnReflexive(slot, form).size() == form.size();
}

constexpr int kThirdPerson = 2;

std::string_view encliticInNorm(int slot, Adverb adverb) {
  if (adverb == Adverb::none) return encliticOf(slot);
  return kEncliticsBeforeAdverb[slot - slot::kImperative][adverb == Adverb::en ? 0 : 1];
}

// To either half of "assois/assieds"; a half that stands for a missing form has none.
template <typename Forms>
void appendEnclitics(Forms& forms, int slot, std::string_view enclitic) {
  const std::string& form = forms[slot];
  const Part part{PieceKind::enclitic, enclitic};
  const auto bar = form.find('/');
  if (bar != std::string::npos && form.substr(0, bar) != kShownMissing)
    insert(forms, slot, bar, part);
  append(forms, slot, part);
}

// "me ", "m'", "m'en ", "nous y ": what stands before the form.
std::string reflexiveInNorm(int slot, std::string_view form, const EngineFlags& flags) {
  if (flags.adverb == Adverb::none)
    return std::string(reflexiveOf(slot, elides(form, flags.hAspirate, Variety::norm)));
  return std::string(reflexiveOf(slot, true)) + (flags.adverb == Adverb::en ? "en " : "y ");
}

template <typename Forms>
void prepend(Forms& forms, int slot, std::string_view pronoun) {
  insert(forms, slot, 0, {PieceKind::reflexive, pronoun});
}

// The infinitives and the compound participle: "se " or "s'".
template <typename Forms>
void prependThirdPerson(Forms& forms, int slot, bool hAspirate) {
  prepend(forms, slot, reflexiveOf(kThirdPerson, elides(forms[slot], hAspirate)));
}

// What is asked of a form: whether a pronoun elides before it, or why.
template <typename Answer>
constexpr Answer verdict(bool elides, Elision yes, Elision no) {
  if constexpr (std::is_same_v<Answer, bool>)
    return elides;
  else
    return elides ? yes : no;
}

// Not in the template that asks for it: there Clang 14 would look for the literal at run time.
constexpr char kLigature = "œ"_fr[0];

template <typename Answer>
Answer judge(std::string_view form, bool hAspirate, Variety variety) {
  const auto vowel = [](bool elides, Elision no) {
    return verdict<Answer>(elides, Elision::vowel, no);
  };
  if (form.empty()) return vowel(false, Elision::none);
  if (form[0] == 'h') return verdict<Answer>(!hAspirate, Elision::muteH, Elision::aspiratedH);
  if (variety == Variety::norm && form[0] == kLigature) return vowel(true, Elision::none);
  if (variety == Variety::norm && form[0] == 'y')
    return vowel(form.size() > 1 && !isVowel(form[1]), Elision::glide);
  if (variety == Variety::norm && form[0] == 'i') return vowel(!isUnelided(form), Elision::glide);
  return vowel(isVowel(form[0]), Elision::none);
}

template <typename Forms>
void losePastImperative(Forms& forms) {
  for (int slot = slot::kPastImperative; slot < slot::kInfinitive; ++slot)
    lose(forms, slot, Lack::reflexiveImperative);
}

}  // namespace

bool elides(std::string_view form, bool hAspirate, Variety variety) {
  return judge<bool>(form, hAspirate, variety);
}

Elision elisionBefore(std::string_view form, bool hAspirate, Variety variety) {
  return judge<Elision>(form, hAspirate, variety);
}

std::string_view detail::withoutReflexiveLookedFor(int slot, std::string_view form) {
  if (isImperative(slot)) {
    const std::string_view bare = withoutEnclitic(slot, form);
    if (bare.size() != form.size()) return bare;
  }
  if (hasReflexivePrefix(form)) return withoutReflexivePrefix(form);
  if (!isPersonal(slot)) return form;
  for (const bool elided : {false, true})
    if (form.starts_with(reflexiveOf(slot, elided)))
      return form.substr(reflexiveOf(slot, elided).size());
  return form;
}

template <typename Forms>
void addReflexivePronouns(Forms& forms, bool hAspirate) {
  for (int slot = 0; slot < kSlotCount; ++slot) {
    const std::string& form = forms[slot];
    if (!takesReflexive(slot, form)) continue;
    if (isPersonal(slot))
      prepend(forms, slot, reflexiveOf(slot, elides(form, hAspirate)));
    else if (isImperative(slot))
      append(forms, slot, {PieceKind::enclitic, encliticOf(slot)});
    else if (slot >= slot::kInfinitive && slot != slot::kPastParticiple)
      prependThirdPerson(forms, slot, hAspirate);
  }
  losePastImperative(forms);
}

template <typename Forms>
void addReflexivePronounsOfNorm(Forms& forms, const EngineFlags& flags) {
  for (int slot = 0; slot < kSlotCount; ++slot) {
    const std::string& form = forms[slot];
    if (!takesReflexive(slot, form)) continue;
    if (isImperative(slot))
      appendEnclitics(forms, slot, encliticInNorm(slot, flags.adverb));
    else if (isPersonal(slot) || (slot >= slot::kInfinitive && slot != slot::kPastParticiple))
      prepend(forms, slot, reflexiveInNorm(isPersonal(slot) ? slot : kThirdPerson, form, flags));
  }
  losePastImperative(forms);
}

template void addReflexivePronouns(FormTable&, bool);
template void addReflexivePronouns(TracedForms&, bool);
template void addReflexivePronounsOfNorm(FormTable&, const EngineFlags&);
template void addReflexivePronounsOfNorm(TracedForms&, const EngineFlags&);

void chooseSubjectPronouns(const FormTable& forms, bool hAspirate, SubjectPronouns& pronouns,
                           Variety variety) {
  for (int slot = 0; slot < kPersonalSlotCount; slot += kPersonCount) {
    for (int person = 0; person < kPersonCount; ++person)
      pronouns[static_cast<std::size_t>(slot + person)] = kSubjects[person];
    if (elides(forms[slot], hAspirate, variety))
      pronouns[static_cast<std::size_t>(slot)] = kElidedJe;
  }
}

void chooseSubjunctiveCaptions(const FormTable& forms, SubjunctiveCaptions& captions,
                               Variety variety) {
  const bool isFalloir = forms[slot::kInfinitive] == "falloir";
  const int first = isFalloir ? text_id::kFalloirCaption : text_id::kSubjunctiveCaption;
  for (int i = 0; i < static_cast<int>(captions.size()); ++i)
    captions[static_cast<std::size_t>(i)] =
        variety == Variety::norm ? normTextOf(first + i) : textOf(first + i);
}

}  // namespace odmiennik::engine
