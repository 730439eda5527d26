// SPDX-License-Identifier: GPL-3.0-or-later
// Composition of forms.
#include "explainer/composition.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <span>

#include "dictionary/verb_labels.h"
#include "engine/string_table.h"
#include "engine/windows1252.h"
#include "explainer/form_names.h"
#include "explainer/spelling_change.h"

namespace odmiennik::explainer {
namespace {

using engine::Maker;
using engine::Making;
using engine::Origin;
using engine::Piece;
using engine::PieceKind;
namespace slot = engine::slot;
namespace auxiliary_index = engine::auxiliary_index;

using Pieces = std::span<const Piece>;

bool isPronoun(const Piece& piece) {
  return piece.kind == PieceKind::reflexive || piece.kind == PieceKind::enclitic;
}

std::vector<Piece> withoutPronouns(const std::vector<Piece>& pieces) {
  std::vector<Piece> bare;
  std::ranges::copy_if(pieces, std::back_inserter(bare), std::not_fn(isPronoun));
  return bare;
}

// The pieces of each form of "paye/paie".
std::vector<Pieces> variantsOf(const std::vector<Piece>& pieces) {
  std::vector<Pieces> variants;
  auto first = pieces.begin();
  for (auto piece = first;; ++piece) {
    const bool isEnd = piece == pieces.end();
    if (!isEnd && piece->kind != PieceKind::separator) continue;
    variants.emplace_back(first, piece);
    if (isEnd) return variants;
    first = piece + 1;
  }
}

// All pieces of a kind in a row.
std::string textOf(Pieces pieces, PieceKind kind) {
  std::string text;
  for (const Piece& piece : pieces)
    if (piece.kind == kind) text.append(piece.text);
  return text;
}

// Without the mark of agreement, which is no part of the ending.
std::string wordOf(Pieces pieces) {
  std::string word;
  for (const Piece& piece : pieces)
    if (piece.kind != PieceKind::agreement) word.append(piece.text);
  return word;
}

// What is told of one form, by whoever has made it.
class FormStory {
 public:
  FormStory(Remarks& remarks, const engine::TracedConjugation& conjugation, const Making& making,
            const Making* regular)
      : remarks_(remarks), conjugation_(conjugation), making_(making), regular_(regular) {}

  void tell(Pieces pieces, std::size_t variant) const {
    const std::string whole = textOf(pieces, PieceKind::whole);
    if (!whole.empty()) return tellWhole(whole);
    if (tellsSpelling(pieces)) return;
    tellStem(pieces, variant);
    tellVowel(textOf(pieces, PieceKind::vowel));
    tellEnding(pieces);
  }

 private:
  void tellWhole(const std::string& form) const {
    if (form == engine::kShownMissing) return add(remarks_, PhraseId::missingVariant);
    if (making_.maker == Maker::infinitive) return add(remarks_, PhraseId::infinitive);
    if (making_.maker == Maker::wholeText) return add(remarks_, PhraseId::writtenWhole);
    if (making_.origin.slot != engine::kNoSlot) return tellForm(making_.origin.form);
    add(remarks_, PhraseId::stored);
  }

  // The rule's form beside what the regular paradigm had written before it.
  [[nodiscard]] bool tellsSpelling(Pieces pieces) const {
    if (regular_ == nullptr || regular_ == &making_ || making_.origin.slot != slot::kInfinitive)
      return false;
    const std::string word = wordOf(pieces);
    const std::string stem = textOf(regular_->pieces, PieceKind::stem);
    const std::string ending = wordOf(regular_->pieces).substr(stem.size());
    if (stem.empty() || ending.empty() || !word.ends_with(ending)) return false;
    const std::string_view changed = engine::less(word, ending.size());
    if (!canBeTold(stem, changed)) return false;
    add(remarks_, PhraseId::stem, {stem});
    addChange(remarks_, stem, changed, ending);
    add(remarks_, PhraseId::ending, {ending});
    return true;
  }

  void tellStem(Pieces pieces, std::size_t variant) const {
    const std::string stem = textOf(pieces, PieceKind::stem);
    const Origin& origin = making_.origin;
    if (making_.maker == Maker::model) return tellStemOfModel(stem);
    if (origin.slot == engine::kNoSlot) return add(remarks_, PhraseId::fromText, {stem});
    if (origin.slot == slot::kInfinitive) return tellInfinitive(stem);
    tellForm(variantOf(origin.form, variant));
    if (!origin.added.empty()) add(remarks_, PhraseId::addedLetters, {origin.added});
  }

  void tellStemOfModel(const std::string& stem) const {
    if (stem.empty()) return;
    add(remarks_, hasEndings() ? PhraseId::stem : PhraseId::kept, {stem});
  }

  void tellInfinitive(const std::string& stem) const {
    const Origin& origin = making_.origin;
    const bool isFuture = making_.maker == Maker::future && origin.added.empty();
    if (!isFuture) return add(remarks_, PhraseId::stem, {stem});
    if (origin.cut == 0) return add(remarks_, PhraseId::fromInfinitive, {origin.form});
    add(remarks_, PhraseId::fromInfinitiveLess, {origin.form, cutOff(origin.form)});
  }

  // "od formy „nous finissons” (présent) bez -ons"
  void tellForm(std::string_view form) const {
    const int from = making_.origin.slot;
    const Utf8Text named = engine::toUtf8(withSubject(from, form, conjugation_.flags));
    const Utf8Text tense = tenseName(from);
    if (making_.origin.cut == 0) return addNamed(remarks_, PhraseId::fromForm, {named, tense});
    addNamed(remarks_, PhraseId::fromFormLess, {named, tense, engine::toUtf8(cutOff(form))});
  }

  [[nodiscard]] std::string cutOff(std::string_view form) const {
    return std::string(form.substr(engine::less(form, making_.origin.cut).size()));
  }

  // The builders of present subjunctive and conditional take variant by variant, the others all.
  [[nodiscard]] std::string variantOf(std::string_view form, std::size_t variant) const {
    const bool isByVariant =
        making_.maker == Maker::presentSubjunctive || making_.maker == Maker::conditional;
    if (!isByVariant) return std::string(form);
    for (; variant > 0; --variant) form.remove_prefix(form.find('/') + 1);
    return std::string(form.substr(0, form.find('/')));
  }

  // il has the vowel of nous.
  void tellVowel(const std::string& vowel) const {
    if (vowel.empty()) return;
    const std::string& je = making_.origin.form;
    if (engine::less(je, 1).ends_with(vowel)) return add(remarks_, PhraseId::vowel, {vowel});
    const int nous = slot::kPastHistoric + 3;
    add(remarks_, PhraseId::vowelOf,
        {vowel, withSubject(nous, bareFormOf(nous), conjugation_.flags)});
  }

  [[nodiscard]] std::string bareFormOf(int other) const {
    return engine::textOf(withoutPronouns(conjugation_.trace[other].makings.back().pieces));
  }

  void tellEnding(Pieces pieces) const {
    const std::string ending = textOf(pieces, PieceKind::ending);
    if (!ending.empty()) return add(remarks_, PhraseId::ending, {ending});
    if (making_.maker == Maker::presentSubjunctive) return add(remarks_, PhraseId::noEnding);
    const std::string text = textOf(pieces, PieceKind::text);
    const bool hasStem = !textOf(pieces, PieceKind::stem).empty();
    if (text.empty()) return;
    if (!hasStem) return add(remarks_, PhraseId::writtenWhole);
    add(remarks_, hasEndings() ? PhraseId::ending : PhraseId::continued, {text});
  }

  [[nodiscard]] bool hasEndings() const {
    const ModelVerb* row = modelVerbOf(making_.model, making_.isOfNorm);
    return row != nullptr && row->hasEndings;
  }

  Remarks& remarks_;
  const engine::TracedConjugation& conjugation_;
  const Making& making_;
  const Making* regular_;
};

// What the regular paradigm of the first group had written, where a spelling rule came after it.
const Making* regularOf(const engine::SlotTrace& trace) {
  const auto isRegular = [](const Making& making) {
    return making.model == "regular" && !making.isOfNorm;
  };
  const auto regular = std::ranges::find_if(trace.makings, isRegular);
  return regular == trace.makings.end() ? nullptr : &*regular;
}

// The tense of the auxiliary's 44 forms that form `index` belongs to.
Utf8Text tenseOfAuxiliary(int index) {
  if (index == auxiliary_index::kInfinitive) return tenseName(slot::kInfinitive);
  if (index == auxiliary_index::kPresentParticiple) return tenseName(slot::kPresentParticiple);
  constexpr int kTenses[] = {slot::kPresent,
                             slot::kImperfect,
                             slot::kPastHistoric,
                             slot::kFuture,
                             slot::kPresentSubjunctive,
                             slot::kImperfectSubjunctive,
                             slot::kPresentConditional};
  return tenseName(kTenses[index / engine::kPersonCount]);
}

void addCompound(Remarks& remarks, const engine::TracedConjugation& conjugation,
                 const Making& making) {
  const Pieces pieces = making.pieces;
  const bool isEtre = conjugation.flags.auxiliary == engine::kEtre;
  const std::string form = textOf(pieces, PieceKind::auxiliary);
  addNamed(remarks, PhraseId::auxiliary,
           {tenseOfAuxiliary(making.auxiliaryForm),
            dictionary::auxiliaryName(conjugation.flags.auxiliary), engine::toUtf8(form)});
  if (conjugation.shown.isPronominal) add(remarks, PhraseId::reflexiveEtre);
  const std::string participle = textOf(pieces, PieceKind::participle);
  const std::string agreement = textOf(pieces, PieceKind::agreement);
  if (!participle.empty()) add(remarks, PhraseId::participle, {participle});
  if (!agreement.empty()) return add(remarks, PhraseId::agreement, {agreement});
  if (isEtre) add(remarks, PhraseId::noAgreement);
}

void addForms(Remarks& remarks, const engine::TracedConjugation& conjugation,
              const engine::SlotTrace& trace) {
  const Making& making = trace.makings.back();
  const std::vector<Piece> bare = withoutPronouns(making.pieces);
  const std::vector<Pieces> variants = variantsOf(bare);
  const FormStory story(remarks, conjugation, making, regularOf(trace));
  for (std::size_t i = 0; i < variants.size(); ++i) {
    if (variants.size() > 1) add(remarks, PhraseId::variant, {wordOf(variants[i])});
    story.tell(variants[i], i);
  }
}

}  // namespace

void addComposition(Remarks& remarks, const engine::TracedConjugation& conjugation, int slot) {
  const engine::SlotTrace& trace = conjugation.trace[slot];
  const Making& making = trace.makings.back();
  if (making.maker == Maker::compound) return addCompound(remarks, conjugation, making);
  if (making.maker == Maker::agreement)
    return add(remarks, PhraseId::ownFeminine, {engine::textOf(making.pieces)});
  addForms(remarks, conjugation, trace);
  const std::string agreement = textOf(Pieces(making.pieces), PieceKind::agreement);
  if (!agreement.empty()) add(remarks, PhraseId::agreement, {agreement});
}

}  // namespace odmiennik::explainer
