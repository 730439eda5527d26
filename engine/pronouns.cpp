// SPDX-License-Identifier: GPL-3.0-or-later
// Subject and reflexive pronouns.
#include "engine/pronouns.h"

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
void appendEnclitics(std::string& form, std::string_view enclitic) {
  const auto bar = form.find('/');
  if (bar != std::string::npos && form.substr(0, bar) != kShownMissing) form.insert(bar, enclitic);
  form.append(enclitic);
}

// "me ", "m'", "m'en ", "nous y ": what stands before the form.
std::string reflexiveInNorm(int slot, std::string_view form, const EngineFlags& flags) {
  if (flags.adverb == Adverb::none)
    return std::string(reflexiveOf(slot, elides(form, flags.hAspirate, Variety::norm)));
  return std::string(reflexiveOf(slot, true)) + (flags.adverb == Adverb::en ? "en " : "y ");
}

// The infinitives and the compound participle: "se " or "s'".
void prependThirdPerson(std::string& form, bool hAspirate) {
  form.insert(0, reflexiveOf(kThirdPerson, elides(form, hAspirate)));
}

}  // namespace

bool elides(std::string_view form, bool hAspirate, Variety variety) {
  if (form.empty()) return false;
  if (form[0] == 'h') return !hAspirate;
  if (variety == Variety::norm && form[0] == "œ"_fr[0]) return true;
  if (variety == Variety::norm && form[0] == 'y') return form.size() > 1 && !isVowel(form[1]);
  if (variety == Variety::norm && form[0] == 'i') return !isUnelided(form);
  return isVowel(form[0]);
}

std::string_view withoutOwnReflexive(int slot, std::string_view form) {
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

void addReflexivePronouns(FormTable& forms, bool hAspirate) {
  for (int slot = 0; slot < kSlotCount; ++slot) {
    std::string& form = forms[slot];
    if (!takesReflexive(slot, form)) continue;
    if (isPersonal(slot))
      form.insert(0, reflexiveOf(slot, elides(form, hAspirate)));
    else if (isImperative(slot))
      form.append(encliticOf(slot));
    else if (slot >= slot::kInfinitive && slot != slot::kPastParticiple)
      prependThirdPerson(form, hAspirate);
  }
  for (int slot = slot::kPastImperative; slot < slot::kInfinitive; ++slot) forms[slot].clear();
}

void addReflexivePronounsOfNorm(FormTable& forms, const EngineFlags& flags) {
  for (int slot = 0; slot < kSlotCount; ++slot) {
    std::string& form = forms[slot];
    if (!takesReflexive(slot, form)) continue;
    if (isImperative(slot))
      appendEnclitics(form, encliticInNorm(slot, flags.adverb));
    else if (isPersonal(slot) || (slot >= slot::kInfinitive && slot != slot::kPastParticiple))
      form.insert(0, reflexiveInNorm(isPersonal(slot) ? slot : kThirdPerson, form, flags));
  }
  for (int slot = slot::kPastImperative; slot < slot::kInfinitive; ++slot) forms[slot].clear();
}

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
