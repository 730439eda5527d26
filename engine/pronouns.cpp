// Subject and reflexive pronouns.
#include "engine/pronouns.h"

#include "engine/french.h"
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

// The infinitives and the compound participle: "se " or "s'".
void prependThirdPerson(std::string& form, bool hAspirate) {
  constexpr int kThirdPerson = 2;
  form.insert(0, reflexiveOf(kThirdPerson, elides(form, hAspirate)));
}

}  // namespace

bool elides(std::string_view form, bool hAspirate) {
  if (form.empty()) return false;
  return form[0] == 'h' ? !hAspirate : kIsVowel[static_cast<unsigned char>(form[0])];
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

void chooseSubjectPronouns(const FormTable& forms, bool hAspirate, SubjectPronouns& pronouns) {
  for (int slot = 0; slot < kPersonalSlotCount; slot += kPersonCount) {
    for (int person = 0; person < kPersonCount; ++person)
      pronouns[static_cast<std::size_t>(slot + person)] = kSubjects[person];
    if (elides(forms[slot], hAspirate)) pronouns[static_cast<std::size_t>(slot)] = kElidedJe;
  }
}

void chooseSubjunctiveCaptions(const FormTable& forms, SubjunctiveCaptions& captions) {
  const bool isFalloir = forms[slot::kInfinitive] == "falloir";
  const int first = isFalloir ? text_id::kFalloirCaption : text_id::kSubjunctiveCaption;
  for (std::size_t i = 0; i < captions.size(); ++i)
    captions[i] = textOf(first + static_cast<int>(i));
}

}  // namespace odmiennik::engine
