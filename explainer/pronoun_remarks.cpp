// SPDX-License-Identifier: GPL-3.0-or-later
// Pronouns in words.
#include "explainer/pronoun_remarks.h"

#include <algorithm>

#include "engine/normalization.h"
#include "engine/string_table.h"

namespace odmiennik::explainer {
namespace {

using engine::Elision;
using engine::Piece;
using engine::PieceKind;

// Why a pronoun before `form` is `elided`, or stays `whole`: "j'" and "je".
void addElision(Remarks& remarks, Elision elision, std::string_view elided, std::string_view whole,
                std::string_view form) {
  const std::string_view first = form.substr(0, 1);
  if (elision == Elision::vowel) add(remarks, PhraseId::elidedVowel, {elided, whole, first});
  if (elision == Elision::muteH) add(remarks, PhraseId::elidedMuteH, {elided, whole});
  if (elision == Elision::aspiratedH) add(remarks, PhraseId::aspiratedH, {whole});
  if (elision == Elision::glide) add(remarks, PhraseId::glide, {whole, first});
}

const Piece* pieceOf(const engine::Making& making, PieceKind kind) {
  const auto piece = std::ranges::find(making.pieces, kind, &Piece::kind);
  return piece == making.pieces.end() ? nullptr : &*piece;
}

Elision elisionBefore(const engine::Conjugation& conjugation, std::string_view form) {
  return engine::elisionBefore(form, conjugation.flags.hAspirate, conjugation.flags.variety);
}

// "m'en " -> "m'", "en"; an adverb before which every pronoun is elided.
void addAdverb(Remarks& remarks, std::string_view pronoun) {
  const std::string_view bare = engine::trimmed(pronoun);
  for (const std::string_view adverb : {"en", "y"})
    if (bare.ends_with(adverb)) add(remarks, PhraseId::adverb, {adverb});
}

bool isNousOrVous(std::string_view pronoun) {
  return pronoun.starts_with("nous") || pronoun.starts_with("vous");
}

void addReflexive(Remarks& remarks, const engine::Conjugation& conjugation,
                  const std::string& pronoun, std::string_view form) {
  add(remarks, PhraseId::reflexive, {engine::trimmed(pronoun)});
  addAdverb(remarks, pronoun);
  const bool hasAdverb = conjugation.flags.adverb != engine::Adverb::none;
  if (hasAdverb || isNousOrVous(pronoun)) return;
  const std::string letter = pronoun.substr(0, 1);
  addElision(remarks, elisionBefore(conjugation, form), letter + "'", letter + "e", form);
}

void addSubject(Remarks& remarks, const engine::Conjugation& conjugation, int slot) {
  if (slot >= engine::kPersonalSlotCount || slot % engine::kPersonCount != 0) return;
  const std::string_view form = conjugation.forms[slot];
  addElision(remarks, elisionBefore(conjugation, form), "j'", "je", form);
}

}  // namespace

void addPronouns(Remarks& remarks, const engine::TracedConjugation& conjugation, int slot) {
  const engine::SlotTrace& trace = conjugation.trace[slot];
  const std::string& form = conjugation.forms[slot];
  const Piece* reflexive = pieceOf(trace.makings.back(), PieceKind::reflexive);
  if (reflexive != nullptr)
    addReflexive(remarks, conjugation, reflexive->text, form.substr(reflexive->text.size()));
  if (const Piece* enclitic = pieceOf(trace.makings.back(), PieceKind::enclitic)) {
    add(remarks, PhraseId::enclitic, {enclitic->text});
    addAdverb(remarks, enclitic->text);
  }
  if (trace.shownLength < form.size()) add(remarks, PhraseId::hiddenPronoun);
  if (reflexive == nullptr) addSubject(remarks, conjugation, slot);
}

}  // namespace odmiennik::explainer
