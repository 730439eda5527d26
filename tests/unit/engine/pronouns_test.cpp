// Elision, reflexive pronouns, subject pronouns and captions.
#include "engine/pronouns.h"

#include <gtest/gtest.h>

#include <set>

#include "engine/windows1252.h"
#include "tests/support/test_program.h"

namespace odmiennik::engine {
namespace {

using odmiennik::testing::french;

FormTable filledWith(std::string_view form) {
  FormTable forms;
  for (int slot = 0; slot < kSlotCount; ++slot) forms[slot] = french(form);
  return forms;
}

FormTable pronominal(std::string_view form, bool hAspirate = false) {
  FormTable forms = filledWith(form);
  addReflexivePronouns(forms, hAspirate);
  return forms;
}

TEST(Elision, HappensBeforeElevenLettersAndMuteHAndNoOtherByte) {
  std::set<char> eliding{'h'};
  for (const char letter : french("aâèéeêioôuy")) eliding.insert(letter);
  ASSERT_EQ(eliding.size(), 12U);
  for (int byte = 0; byte < 256; ++byte) {
    const std::string form{static_cast<char>(byte), 'x'};
    EXPECT_EQ(elides(form, false), eliding.contains(form[0])) << byte;
  }
}

TEST(Elision, DoesNotHappenBeforeAnAspiratedHButBeforeEveryVowelAllTheSame) {
  EXPECT_FALSE(elides("hais", true));
  EXPECT_TRUE(elides("aime", true));
  EXPECT_TRUE(elides("habite", false));
}

TEST(Elision, DoesNotHappenBeforeTheLettersLeftOutOfTheVowelClass) {
  for (const std::string_view letter : {"à", "î", "û", "ë", "ï", "ö", "ü", "ù", "œ", "æ", "ÿ"})
    EXPECT_FALSE(elides(french(letter), false)) << letter;
}

TEST(Elision, DoesNotHappenBeforeCapitals) {
  for (const std::string_view letter : {"A", "E", "É", "H", "Y"})
    EXPECT_FALSE(elides(french(letter), false)) << letter;
}

TEST(Elision, AnEmptyFormDoesNotElide) { EXPECT_FALSE(elides("", false)); }

TEST(ReflexivePronouns, StandInFrontOfThePersonsOfEveryTense) {
  const FormTable forms = pronominal("lave");
  const std::string_view wanted[] = {"me lave",   "te lave",   "se lave",
                                     "nous lave", "vous lave", "se lave"};
  for (int slot = 0; slot < 90; ++slot) EXPECT_EQ(forms[slot], wanted[slot % 6]) << slot;
}

TEST(ReflexivePronouns, ElideBeforeAVowel) {
  const FormTable forms = pronominal("amuse");
  const std::string_view wanted[] = {"m'amuse",    "t'amuse",    "s'amuse",
                                     "nous amuse", "vous amuse", "s'amuse"};
  for (int slot = 0; slot < 90; ++slot) EXPECT_EQ(forms[slot], wanted[slot % 6]) << slot;
}

TEST(ReflexivePronouns, ElideBeforeAMuteHOnly) {
  EXPECT_EQ(pronominal("habille")[0], "m'habille");
  EXPECT_EQ(pronominal("hasarde", true)[0], "me hasarde");
  EXPECT_EQ(pronominal("hasarder", true)[96], "se hasarder");
}

TEST(ReflexivePronouns, ElideByTheAuxiliaryInCompoundForms) {
  FormTable forms;
  forms[24] = french("suis lavé(e)");
  forms[25] = french("es lavé(e)");
  forms[30] = french("étais lavé(e)");
  addReflexivePronouns(forms, false);
  EXPECT_EQ(toUtf8(forms[24]), "me suis lavé(e)");
  EXPECT_EQ(toUtf8(forms[25]), "t'es lavé(e)");
  EXPECT_EQ(toUtf8(forms[30]), "m'étais lavé(e)");
}

TEST(ReflexivePronouns, FollowThePresentImperative) {
  const FormTable forms = pronominal("lave");
  EXPECT_EQ(forms[90], "lave-toi");
  EXPECT_EQ(forms[91], "lave-nous");
  EXPECT_EQ(forms[92], "lave-vous");
}

TEST(ReflexivePronouns, EmptyThePastImperative) {
  const FormTable forms = pronominal("lave");
  for (int slot = 93; slot < 96; ++slot) EXPECT_EQ(forms[slot], "") << slot;
}

TEST(ReflexivePronouns, EmptyThePastImperativeAlsoOfAPlaceholder) {
  EXPECT_EQ(pronominal("*")[93], "");
}

TEST(ReflexivePronouns, StandInFrontOfInfinitivesAndParticiplesButNotThePastParticiple) {
  const FormTable consonant = pronominal("laver");
  const FormTable vowel = pronominal("amuser");
  for (const int slot : {96, 97, 98, 100}) {
    EXPECT_EQ(consonant[slot], "se laver") << slot;
    EXPECT_EQ(vowel[slot], "s'amuser") << slot;
  }
  EXPECT_EQ(consonant[99], "laver");
  EXPECT_EQ(vowel[99], "amuser");
}

TEST(ReflexivePronouns, ArenotAddedToAPlaceholder) {
  const FormTable forms = pronominal("*");
  for (int slot = 0; slot < kSlotCount; ++slot) {
    if (slot >= 93 && slot < 96) continue;
    EXPECT_EQ(forms[slot], "*") << slot;
  }
}

TEST(ReflexivePronouns, AreNotAddedToAnEmptySlot) {
  const FormTable forms = pronominal("");
  for (int slot = 0; slot < kSlotCount; ++slot) EXPECT_EQ(forms[slot], "") << slot;
}

TEST(ReflexivePronouns, AreNotAddedBehindSeOrS) {
  for (const std::string_view form : {"se lave", "s'amuse"}) {
    const FormTable forms = pronominal(form);
    for (int slot = 0; slot < kSlotCount; ++slot) {
      if (slot >= 93 && slot < 96) continue;
      EXPECT_EQ(forms[slot], form) << slot;
    }
  }
}

TEST(ReflexivePronouns, AreNotAddedWhereTheSlotHasItsOwn) {
  FormTable forms;
  const std::string_view own[] = {"me lave", "t'amuses", "se lave", "nous lavons", "vous lavez"};
  for (int slot = 0; slot < 5; ++slot) forms[slot] = own[slot];
  forms[90] = "lave-toi";
  forms[91] = "lavons-nous";
  forms[92] = "lavez-vous";
  addReflexivePronouns(forms, false);
  for (int slot = 0; slot < 5; ++slot) EXPECT_EQ(forms[slot], own[slot]);
  EXPECT_EQ(forms[90], "lave-toi");
  EXPECT_EQ(forms[91], "lavons-nous");
  EXPECT_EQ(forms[92], "lavez-vous");
}

struct Enclitics {
  int slot;
  const char* form;
  const char* bare;
};

constexpr Enclitics kEnclitics[] = {{90, "va-t'en", "va"},
                                    {90, "rends-t'y", "rends"},
                                    {91, "allons-nous-en", "allons"},
                                    {91, "rendons-nous-y", "rendons"},
                                    {92, "allez-vous-en", "allez"},
                                    {92, "rendez-vous-y", "rendez"}};

TEST(ReflexivePronouns, AreNotAddedWhereEnOrYStandsBehindTheImperativesOwn) {
  for (const auto& [slot, form, bare] : kEnclitics) {
    FormTable forms;
    forms[slot] = form;
    addReflexivePronouns(forms, false);
    EXPECT_EQ(forms[slot], form);
  }
}

TEST(OwnReflexive, BeforeEnOrYIsTakenOffTheImperativeForDisplay) {
  for (const auto& [slot, form, bare] : kEnclitics)
    EXPECT_EQ(withoutOwnReflexive(slot, form), bare) << form;
}

TEST(ReflexivePronouns, AreAddedBehindThePronounOfAnotherPerson) {
  FormTable forms;
  forms[0] = "te lave";
  forms[90] = "lave-vous";
  addReflexivePronouns(forms, false);
  EXPECT_EQ(forms[0], "me te lave");
  EXPECT_EQ(forms[90], "lave-vous-toi");
}

TEST(OwnReflexive, IsTakenOffForDisplay) {
  EXPECT_EQ(withoutOwnReflexive(0, "me lave"), "lave");
  EXPECT_EQ(withoutOwnReflexive(1, "t'amuses"), "amuses");
  EXPECT_EQ(withoutOwnReflexive(27, "nous sommes"), "sommes");
  EXPECT_EQ(withoutOwnReflexive(90, "lave-toi"), "lave");
  EXPECT_EQ(withoutOwnReflexive(96, "se laver"), "laver");
}

TEST(OwnReflexive, OfAnotherPersonStays) {
  EXPECT_EQ(withoutOwnReflexive(0, "te lave"), "te lave");
  EXPECT_EQ(withoutOwnReflexive(90, "lavez-vous"), "lavez-vous");
  EXPECT_EQ(withoutOwnReflexive(96, "me laver"), "me laver");
}

TEST(OwnReflexive, IsNotTheBeginningOfAForm) {
  for (const std::string_view form : {"mens", "teins", "sème", "nouais", "vouais", "nous", "m"})
    for (int person = 0; person < 6; ++person)
      EXPECT_EQ(withoutOwnReflexive(person, french(form)), french(form)) << form << person;
}

std::string pronounsOf(std::string_view form, bool hAspirate) {
  SubjectPronouns pronouns;
  chooseSubjectPronouns(filledWith(form), hAspirate, pronouns);
  std::string row;
  for (int person = 0; person < 6; ++person)
    row.append(pronouns[static_cast<std::size_t>(person)]).append(" ");
  return row;
}

TEST(SubjectPronouns, AbbreviateNousAndVousAsNsAndVs) {
  EXPECT_EQ(pronounsOf("parle", false), "je tu il ns vs ils ");
}

TEST(SubjectPronouns, ElideJeOnly) { EXPECT_EQ(pronounsOf("aime", false), "j' tu il ns vs ils "); }

TEST(SubjectPronouns, FollowTheMarkOfAspiratedH) {
  EXPECT_EQ(pronounsOf("habite", false), "j' tu il ns vs ils ");
  EXPECT_EQ(pronounsOf("hais", true), "je tu il ns vs ils ");
}

TEST(SubjectPronouns, JeStaysBeforeAReflexivePronoun) {
  EXPECT_EQ(pronounsOf("m'habille", false), "je tu il ns vs ils ");
}

TEST(SubjectPronouns, AreChosenForEmptySlotsToo) {
  EXPECT_EQ(pronounsOf("", false), "je tu il ns vs ils ");
}

TEST(SubjectPronouns, AreChosenTenseByTense) {
  FormTable forms = filledWith("parle");
  forms[24] = "ai";
  forms[30] = "suis";
  SubjectPronouns pronouns;
  chooseSubjectPronouns(forms, false, pronouns);
  EXPECT_EQ(pronouns[0], "je");
  EXPECT_EQ(pronouns[24], "j'");
  EXPECT_EQ(pronouns[30], "je");
}

TEST(SubjunctiveCaptions, AreIlFautQueForEveryVerbButFalloir) {
  FormTable forms;
  SubjunctiveCaptions captions;
  for (const std::string_view verb : {"parler", "", "Falloir", "se falloir", "refalloir"}) {
    forms[96] = verb;
    chooseSubjunctiveCaptions(forms, captions);
    EXPECT_EQ(captions[0], "Il faut que ...") << verb;
    EXPECT_EQ(captions[1], "Il fallait que ...");
    EXPECT_EQ(captions[2], "Il faut que ...");
    EXPECT_EQ(captions[3], "Il fallait que ...");
  }
}

TEST(SubjunctiveCaptions, OfFalloirAreIlNeCroisPasQue) {
  FormTable forms;
  forms[96] = "falloir";
  SubjunctiveCaptions captions;
  chooseSubjunctiveCaptions(forms, captions);
  EXPECT_EQ(captions[0], "Il ne crois pas que ...");
  EXPECT_EQ(captions[1], "Il ne croyais pas que ...");
  EXPECT_EQ(captions[2], "Il ne crois pas que ...");
  EXPECT_EQ(captions[3], "Il ne croyais pas que ...");
}

}  // namespace
}  // namespace odmiennik::engine
