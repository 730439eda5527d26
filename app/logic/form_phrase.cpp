// SPDX-License-Identifier: GPL-3.0-or-later
// Forms with their pronouns, read out.
#include "app/logic/form_phrase.h"

#include <algorithm>
#include <vector>

#include "app/logic/hints.h"
#include "app/logic/tense_topics.h"
#include "engine/form_table.h"
#include "engine/norm.h"
#include "engine/normalization.h"
#include "engine/pronouns.h"
#include "engine/windows1252.h"

namespace odmiennik::app {
namespace {

using Texts = std::vector<std::string>;

bool isSubjunctive(int slot) {
  return slot >= engine::slot::kPresentSubjunctive && slot < engine::slot::kPresentConditional;
}
bool isImperative(int slot) {
  return slot >= engine::slot::kImperative && slot < engine::slot::kInfinitive;
}
// il and ils: the persons whose feminine has another pronoun.
bool isThirdPerson(int slot) {
  return slot < engine::kPersonalSlotCount && slot % engine::kPersonCount % 3 == 2;
}

// "due(s)" of "dû/due(s)/dus" is two forms.
void addVariant(std::string_view variant, Texts& parts) {
  constexpr std::string_view kPlural = "(s)";
  const bool isTwo = variant.ends_with("e(s)") && !variant.ends_with("/-te(s)");
  if (!isTwo) return void(parts.emplace_back(variant));
  const std::string one(engine::less(variant, kPlural.size()));
  parts.insert(parts.end(), {one, one + "s"});
}

// Where a variant ends: not in "(e, es)" and not in "dissous/-te".
std::size_t endOfVariant(std::string_view text) {
  constexpr std::string_view kSeparators = "/;,";
  const auto end = std::min(text.find_first_of(kSeparators), text.size());
  const bool isMarker = text.substr(0, end).ends_with("(e") || text.substr(end).starts_with("/-");
  return isMarker ? text.find_first_of(kSeparators, end + 1) : end;
}

// "paye/paie" -> "paye", "paie"; " -- /voulons" has one form only.
Texts split(std::string_view text) {
  Texts parts;
  while (!text.empty()) {
    const auto end = endOfVariant(text);
    const std::string_view part = engine::trimmed(text.substr(0, end));
    const bool isMissing = part.empty() || part == engine::trimmed(engine::kShownMissing);
    if (!isMissing) addVariant(part, parts);
    text = end >= text.size() ? std::string_view() : text.substr(end + 1);
  }
  return parts;
}

// The reflexive pronoun of the first variant, before another one: "m'assois/asseye" has it once.
std::string reflexiveBefore(std::string_view pronoun, std::string_view form, bool hAspirate) {
  const bool mayElide = pronoun.ends_with('\'') || pronoun.ends_with("e ");
  if (!mayElide) return std::string(pronoun);
  return std::string(pronoun.substr(0, 1)) + (engine::elides(form, hAspirate) ? "'" : "e ");
}

// What the imperative's last variant ends in, "-toi", belongs to the others too.
void shareEnclitic(int slot, Texts& variants) {
  const std::string last = variants.back();
  const std::string_view enclitic =
      std::string_view(last).substr(engine::withoutOwnReflexive(slot, last).size());
  for (std::size_t i = 0; i + 1 < variants.size(); ++i)
    if (!variants[i].ends_with(enclitic)) variants[i] += enclitic;
}

void sharePronoun(int slot, Texts& variants, bool hAspirate) {
  const std::string first = variants.front();
  const auto bareSize = engine::withoutOwnReflexive(slot, first).size();
  const std::string_view pronoun = std::string_view(first).substr(0, first.size() - bareSize);
  if (pronoun.empty()) return;
  for (std::size_t i = 1; i < variants.size(); ++i)
    if (engine::withoutOwnReflexive(slot, variants[i]).size() == variants[i].size())
      variants[i].insert(0, reflexiveBefore(pronoun, variants[i], hAspirate));
}

// What stands before the participle of "me suis dû/due" belongs to each.
void shareAuxiliary(int slot, Texts& variants) {
  const std::string first = variants.front();
  if (engine::withoutOwnReflexive(slot, first).find(' ') == std::string_view::npos) return;
  const std::string auxiliary = first.substr(0, first.rfind(' ') + 1);
  for (std::size_t i = 1; i < variants.size(); ++i)
    if (variants[i].find(' ') == std::string::npos) variants[i].insert(0, auxiliary);
}

Texts variantsOf(int slot, std::string_view text, bool hAspirate) {
  Texts variants = split(text);
  if (variants.size() < 2) return variants;
  shareAuxiliary(slot, variants);
  if (isImperative(slot))
    shareEnclitic(slot, variants);
  else
    sharePronoun(slot, variants, hAspirate);
  return variants;
}

// A participle whose marker "(e)" or "(e)s" is to be read out.
struct Agreeing {
  std::string masculine;
  std::string feminine;  // empty where nothing agrees
  Texts others;          // the plurals, where it may be several too
};

// The markers of agreement, and of whom a participle with them is said.
enum class Number : std::uint8_t { one, several, either };
struct Marker {
  std::string_view text;
  Number number;
};
constexpr Marker kMarkers[] = {{"/-te(s)", Number::either}, {"/-tes", Number::several},
                               {"/-te", Number::one},       {"(e)(s)", Number::either},
                               {"(e, es)", Number::either}, {"(es)", Number::several},
                               {"(e)s", Number::several},   {"(e)", Number::one}};

Agreeing readOut(std::string_view form) {
  for (const auto& [marker, number] : kMarkers) {
    const auto place = form.find(marker);
    if (place == std::string_view::npos) continue;
    const std::string rest(form.substr(place + marker.size()));
    const engine::ParticipleForms forms = engine::participleForms(form.substr(0, place));
    if (number == Number::several) return {forms.masculines + rest, forms.feminines + rest, {}};
    Agreeing read{forms.masculine + rest, forms.feminine + rest, {}};
    if (number == Number::one) return read;
    if (forms.masculines != forms.masculine) read.others.push_back(forms.masculines);
    read.others.push_back(forms.feminines);
    return read;
  }
  return {std::string(form), {}, {}};
}

std::string subjectOf(int slot, std::string_view form, const engine::EngineFlags& flags,
                      bool isFeminine) {
  if (slot >= engine::kPersonalSlotCount) return {};
  const int person = slot % engine::kPersonCount;
  if (isFeminine && isThirdPerson(slot)) return person == 2 ? "elle " : "elles ";
  const bool isElided = engine::elides(form, flags.hAspirate, flags.variety);
  return std::string(engine::wholeSubject(person, isElided));
}

std::string conjunctionOf(int slot) {
  if (!isSubjunctive(slot)) return {};
  return isThirdPerson(slot) ? "qu'" : "que ";
}

std::string lastWord(std::string_view form) {
  return std::string(form.substr(form.rfind(' ') + 1));
}

class Phrase {
 public:
  Phrase(int slot, const engine::EngineFlags& flags) : slot_(slot), flags_(flags) {}

  void add(std::string_view variant) {
    const Agreeing agreeing = readOut(variant);
    append(whole(agreeing.masculine, false));
    if (agreeing.feminine.empty() || isSubjectImpersonal()) return;
    append(isThirdPerson(slot_) ? whole(agreeing.feminine, true) : lastWord(agreeing.feminine));
    for (const std::string& other : agreeing.others) append(lastWord(other));
  }

  [[nodiscard]] Utf8Text text() const {
    // French typography: a blank that does not break stands before the mark.
    return isImperative(slot_) && !phrase_.empty() ? phrase_ + "\u00A0!" : phrase_;
  }

 private:
  // The il of an impersonal verb is nobody.
  [[nodiscard]] bool isSubjectImpersonal() const {
    return flags_.isImpersonal && isThirdPerson(slot_);
  }

  [[nodiscard]] std::string whole(std::string_view form, bool isFeminine) const {
    return conjunctionOf(slot_) + subjectOf(slot_, form, flags_, isFeminine) + std::string(form);
  }

  void append(const std::string& part) {
    if (!phrase_.empty()) phrase_.append(" ").append(hint(HintId::alternative)).append(" ");
    phrase_ += engine::toUtf8(part);
  }

  int slot_;
  const engine::EngineFlags& flags_;
  Utf8Text phrase_;
};

void addLine(Utf8Text& text, Utf8View line) {
  if (!text.empty() && !line.empty()) text += '\n';
  text += line;
}

Utf8Text phraseOrReason(const ShownForm& shown) {
  if (shown.slot == engine::slot::kInfinitive) return Utf8Text(hint(HintId::entry));
  if (shown.text == engine::kShownMissing) return Utf8Text(hint(HintId::missingForm));
  return formPhrase(shown.slot, shown.text, shown.flags);
}

}  // namespace

Utf8Text formPhrase(int slot, std::string_view text, const engine::EngineFlags& flags) {
  if (text == engine::kShownMissing) return {};
  Phrase phrase(slot, flags);
  for (const std::string& variant : variantsOf(slot, text, flags.hAspirate)) phrase.add(variant);
  return phrase.text();
}

Utf8Text normLine(std::string_view norm) {
  if (norm.empty()) return {};
  if (norm == engine::kShownMissing) return Utf8Text(hint(HintId::normLacksForm));
  return hint(HintId::norm, engine::toUtf8(norm));
}

Utf8Text formTip(const ShownForm& shown) {
  Utf8Text tip = phraseOrReason(shown);
  if (tip.empty()) return tip;
  addLine(tip, normLine(shown.norm));
  if (shown.isOwn) addLine(tip, hint(HintId::ownVerb));
  if (!shown.isEditing && topicOfSlot(shown.slot)) addLine(tip, hint(HintId::pageKey));
  return tip;
}

}  // namespace odmiennik::app
