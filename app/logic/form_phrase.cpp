// SPDX-License-Identifier: GPL-3.0-or-later
// Forms with their pronouns, read out.
#include "app/logic/form_phrase.h"

#include <vector>

#include "app/logic/hints.h"
#include "app/logic/tense_topics.h"
#include "engine/form_table.h"
#include "engine/french.h"
#include "engine/normalization.h"
#include "engine/pronouns.h"

namespace odmiennik::app {
namespace {

using namespace engine::literals;
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

// "paye/paie" -> "paye", "paie"; " -- /voulons" has one form only.
Texts split(std::string_view text) {
  Texts parts;
  while (!text.empty()) {
    auto end = text.find_first_of("/;,");
    if (text.substr(0, end).ends_with("(e")) end = text.find_first_of("/;,", end + 1);  // "(e, es)"
    const std::string_view part = engine::trimmed(text.substr(0, end));
    const bool isMissing = part.empty() || part == engine::trimmed(engine::kShownMissing);
    if (!isMissing) parts.emplace_back(part);
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
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

Texts variantsOf(int slot, std::string_view text, bool hAspirate) {
  Texts variants = split(text);
  if (variants.size() < 2) return variants;
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

// "dissous" -> "dissoute", "mû" -> "mue": participles whose feminine is not their masculine and an
// e.
std::string feminineOf(std::string_view participle) {
  if (participle.ends_with("sous")) return std::string(engine::less(participle, 1)) + "te";
  if (participle.ends_with("û"_fr)) return std::string(engine::less(participle, 1)) + "ue";
  return std::string(participle) + "e";
}

// The markers of agreement, and what they stand for behind the participle.
struct Marker {
  std::string_view text;
  std::string_view plural;  // "s" where several are meant
  bool isEither;            // one or several
};
constexpr Marker kMarkers[] = {{"(e)(s)", "", true},
                               {"(e, es)", "", true},
                               {"(es)", "s", false},
                               {"(e)s", "s", false},
                               {"(e)", "", false}};

// A plural's s, which a participle in s or x has already.
std::string plural(std::string_view base, std::string_view s) {
  const bool hasIt = base.ends_with('s') || base.ends_with('x');
  return std::string(base) + std::string(hasIt ? "" : s);
}

Agreeing readOut(std::string_view form) {
  for (const Marker& marker : kMarkers) {
    const auto place = form.find(marker.text);
    if (place == std::string_view::npos) continue;
    const std::string_view base = form.substr(0, place);
    const std::string rest(form.substr(place + marker.text.size()));
    Agreeing read{plural(base, marker.plural) + rest,
                  feminineOf(base) + std::string(marker.plural) + rest,
                  {}};
    if (marker.isEither && plural(base, "s") != base) read.others.push_back(plural(base, "s"));
    if (marker.isEither) read.others.push_back(feminineOf(base) + "s");
    return read;
  }
  return {std::string(form), {}, {}};
}

std::string subjectOf(int slot, std::string_view form, const engine::EngineFlags& flags,
                      bool isFeminine) {
  constexpr std::string_view kSubjects[] = {"je ", "tu ", "il ", "nous ", "vous ", "ils "};
  if (slot >= engine::kPersonalSlotCount) return {};
  const int person = slot % engine::kPersonCount;
  if (person == 0 && engine::elides(form, flags.hAspirate, flags.variety)) return "j'";
  if (isFeminine && isThirdPerson(slot)) return person == 2 ? "elle " : "elles ";
  return std::string(kSubjects[person]);
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
