// SPDX-License-Identifier: GPL-3.0-or-later
// The explanation of every form of every verb: it is made of the phrases alone, and whoever does
// what it tells gets the form.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <unordered_set>

#include "dictionary/verb_index.h"
#include "engine/pronouns.h"
#include "explainer/explainer.h"
#include "explainer/form_names.h"
#include "tests/explaining/told_form.h"
#include "tests/explaining/traced_verb.h"
#include "tests/support/test_program.h"

namespace odmiennik::testing {
namespace {

using engine::Variety;
using explainer::Explanation;
using explainer::PhraseId;
using explainer::PhrasePart;
using explainer::Remark;
using explainer::Remarks;
using Texts = std::vector<std::string>;

struct NoVerbs final : engine::UserVerbs {
  bool load(std::string_view, engine::FormTable&, std::uint8_t&) override { return false; }
};

constexpr std::size_t kEnough = 8;

// Every verb in both varieties, and every twenty-ninth with its reflexive pronoun: the pronouns are
// added to finished forms.
template <typename Check>
void forEveryExplainedVerb(Check check) {
  NoVerbs noVerbs;
  explainer::Explainer explainer(noVerbs);
  for (int position = 0; position < dictionary::verbCount(); position += kVerbStep) {
    const std::string verb(dictionary::verbAt(position));
    Texts asked{verb};
    if (position % 29 == 0)
      asked.push_back((engine::elides(verb, false, Variety::norm) ? "s'" : "se ") + verb);
    for (const std::string& infinitive : asked)
      for (const Variety variety : {Variety::system, Variety::norm}) {
        explainer.take({.infinitive = infinitive, .variety = variety});
        check(infinitive, explainer);
      }
  }
}

// Places of which `isRight` says no, told as "parler, slot 3: …".
template <typename IsRight>
Texts placesNot(IsRight isRight) {
  Texts places;
  forEveryExplainedVerb([&](const std::string& verb, const explainer::Explainer& explainer) {
    for (int slot = 0; slot < engine::kSlotCount; ++slot) {
      const Explanation told = explainer.explainComposition(slot);
      if (places.size() >= kEnough || isRight(explainer.conjugation(), told)) continue;
      places.push_back(placeOf(verb, explainer.conjugation(), slot) + ": " + utf8(told.phrase) +
                       ": " + std::string(bytesOf(explainer::sentenceOf(told.remarks))));
    }
  });
  return places;
}

// All that remarks may quote beside the verb's own forms.
const std::string& tableTexts() {
  static const std::string kTexts = [] {
    std::string texts = "j'\nje\nme\nm'\nte\nt'\nse\ns'\nen\ny\navoir\nêtre\n";
    for (const explainer::ModelVerb& row : explainer::kModelVerbs)
      texts.append(bytesOf(row.verb)).append("\n").append(bytesOf(row.rule)).append("\n");
    for (int slot = 0; slot < engine::kSlotCount; ++slot)
      texts.append(bytesOf(explainer::tenseName(slot))).append("\n");
    return texts;
  }();
  return kTexts;
}

// What was written into its slots, and the endings that have claimed it.
std::string textsOf(const engine::TracedConjugation& conjugation) {
  std::string texts = conjugation.trace.rule().ending + "\n" + conjugation.trace.norm().ending;
  for (int slot = 0; slot < engine::kSlotCount; ++slot)
    for (const engine::Making& making : conjugation.trace[slot].makings)
      texts.append("\n").append(textOf(making.pieces)).append("\n").append(making.origin.form);
  return utf8(texts);
}

// Judges remarks. One that has been found good of a verb is good of the others.
class Quotable {
 public:
  bool isMadeOfPhrases(const Remark& remark, const engine::TracedConjugation& conjugation) {
    if (good_.contains(std::string(bytesOf(remark.text)))) return true;
    lookAt(conjugation);
    const auto arguments = argumentsOf(remark);
    const bool isGood = arguments && std::ranges::all_of(*arguments, [&](const std::string& one) {
                          return isQuoted(one);
                        });
    if (isGood) good_.emplace(bytesOf(remark.text));
    return isGood;
  }

 private:
  void lookAt(const engine::TracedConjugation& conjugation) {
    const std::string& next = conjugation.forms[engine::slot::kInfinitive];
    if (next == infinitive_ && variety_ == conjugation.variety) return;
    infinitive_ = next;
    variety_ = conjugation.variety;
    texts_ = textsOf(conjugation);
  }

  [[nodiscard]] bool isQuoted(const std::string& text) const {
    const std::string bare = withoutSubject(text);
    const bool isOfVerb = !bare.empty() && texts_.find(bare) != std::string::npos;
    return isOfVerb || (!text.empty() && tableTexts().find(text) != std::string::npos);
  }

  std::string infinitive_, texts_;
  Variety variety_ = Variety::system;
  std::unordered_set<std::string> good_;
};

// "-toi" stands behind every form of the slot, but is told once.
std::string withoutEnclitics(std::string form, const std::string& enclitic) {
  if (enclitic.empty()) return form;
  for (auto at = form.find(enclitic); at != std::string::npos; at = form.find(enclitic))
    form.erase(at, enclitic.size());
  return form;
}

std::string encliticIn(const Remarks& remarks) {
  for (const Remark& remark : remarks)
    if (remark.phrase == PhraseId::enclitic) return argumentsOf(remark)->front();
  return {};
}

// The phrases that an explanation of the index's verbs has used.
const std::set<PhraseId>& usedPhrases() {
  static const std::set<PhraseId> kUsed = [] {
    std::set<PhraseId> used;
    forEveryExplainedVerb([&](const std::string&, const explainer::Explainer& explainer) {
      for (const Remark& remark : explainer.source()) used.insert(remark.phrase);
      for (int slot = 0; slot < engine::kSlotCount; ++slot)
        for (const Remark& remark : explainer.explainComposition(slot).remarks)
          used.insert(remark.phrase);
    });
    return used;
  }();
  return kUsed;
}

TEST(explanation, gives_the_form_of_every_slot_to_whoever_does_what_it_tells) {
  const auto givesForm = [](const engine::TracedConjugation& conjugation, const Explanation& told) {
    const std::string form = utf8(conjugation.forms[told.slot]);
    if (form.empty()) return told.phrase.empty();
    const std::string enclitic = encliticIn(told.remarks);
    const std::string bare = withoutEnclitics(form, enclitic);
    return withoutEnclitics(formBy(told.remarks, bare), enclitic) == bare;
  };
  EXPECT_EQ(placesNot(givesForm), Texts{});
}

TEST(explanation, begins_with_the_form_as_it_is_shown) {
  const auto isShown = [](const engine::TracedConjugation& conjugation, const Explanation& told) {
    const auto position = static_cast<std::size_t>(told.slot);
    const std::string box(conjugation.shown.boxes[position]);
    if (box == engine::kShownMissing) return told.phrase.empty();
    if (told.slot >= engine::kPersonalSlotCount) return told.phrase == box;
    const std::string pronoun(conjugation.shown.pronouns[position]);
    const bool isAbbreviated = pronoun == "ns" || pronoun == "vs";
    return told.phrase.ends_with(box) && (isAbbreviated || told.phrase.starts_with(pronoun));
  };
  EXPECT_EQ(placesNot(isShown), Texts{});
}

TEST(explanation, is_made_of_the_phrases_alone) {
  Quotable quotable;
  Texts strange;
  const auto judge = [&](const Remarks& remarks, const explainer::Explainer& explainer) {
    if (remarks.empty()) strange.push_back("nothing is said");
    for (const Remark& remark : remarks)
      if (strange.size() < kEnough && !quotable.isMadeOfPhrases(remark, explainer.conjugation()))
        strange.emplace_back(bytesOf(remark.text));
  };
  forEveryExplainedVerb([&](const std::string&, const explainer::Explainer& explainer) {
    judge(explainer.source(), explainer);
    for (int slot = 0; slot < engine::kSlotCount; ++slot)
      judge(explainer.explainComposition(slot).remarks, explainer);
  });
  EXPECT_EQ(strange, Texts{});
}

TEST(explanation, has_a_use_for_every_phrase) {
  if (kVerbStep > 1) GTEST_SKIP() << "a part of the verbs needs only some of the phrases";
  // What is said of the user's own verbs, of what is typed, and in tables.
  const std::set<PhraseId> kElsewhere{
      PhraseId::ownVerb,           PhraseId::hiddenPronoun, PhraseId::emptyInRecord,
      PhraseId::nothingToMakeFrom, PhraseId::unknownVerb,   PhraseId::nothingShown,
      PhraseId::onlyThisRow,       PhraseId::ownFeminine,   PhraseId::adverb};
  const std::set<PhrasePart> kPartsElsewhere{PhrasePart::typed, PhrasePart::norm,
                                             PhrasePart::heading};
  Texts unused;
  for (std::size_t i = 0; i < std::size(explainer::kPhrases); ++i) {
    const auto phrase = static_cast<PhraseId>(i);
    const bool isElsewhere =
        kElsewhere.contains(phrase) || kPartsElsewhere.contains(explainer::rowOf(phrase).part);
    if (!isElsewhere && !usedPhrases().contains(phrase))
      unused.emplace_back(bytesOf(explainer::rowOf(phrase).text));
  }
  EXPECT_EQ(unused, Texts{});
}

}  // namespace
}  // namespace odmiennik::testing
