// SPDX-License-Identifier: GPL-3.0-or-later
// Explanations of what was found.
#include "cli/explaining.h"

#include <algorithm>

#include "engine/windows1252.h"

namespace odmiennik::cli {
namespace {

using engine::PieceKind;
using finder::Match;
using finder::Reading;

// The auxiliary that stands in a form of the table; empty where there is none.
std::string auxiliaryIn(const engine::SlotTrace& trace) {
  if (trace.makings.empty()) return {};
  const auto& pieces = trace.makings.back().pieces;
  const auto piece = std::ranges::find(pieces, PieceKind::auxiliary, &engine::Piece::kind);
  return piece == pieces.end() ? std::string() : piece->text;
}

bool isInfinitive(const Reading& reading) { return reading.slot == engine::slot::kInfinitive; }

}  // namespace

Explaining::Explaining(engine::UserVerbs& userVerbs, Utf8View format, engine::Variety variety)
    : explainer_(userVerbs), format_(*explanationFormatNamed(format)), variety_(variety) {}

bool Explaining::append(Utf8Text& out, const Question& question, const finder::Readings& readings,
                        void (*guess)(Utf8Text&, Utf8View, const finder::Readings&)) {
  const bool isFound = !readings.empty() && readings.front().match != Match::slip;
  ExplainedVerbs verbs;
  if (isFound || !explainer_.take({question.infinitive, variety_}))
    for (const Reading& reading : readings) verbs.push_back(explain(reading));
  else
    verbs.push_back(tableOf(question.infinitive));
  const bool isGuessed = !verbs.empty() && verbs.front().match == Match::slip;
  const bool isText = format_.header.empty() && format_.name == "text";
  isGuessed&& isText ? guess(out, question.typed, readings)
                     : format_.append(out, question.typed, verbs);
  return !verbs.empty() && !isGuessed;
}

// A verb that has both auxiliaries is conjugated with the one that stands in the form.
bool Explaining::takeVerbOf(const Reading& reading) {
  const std::string infinitive = finder::infinitiveOf(reading);
  explainer::Asked asked{.infinitive = infinitive, .variety = variety_};
  const bool isOther = variety_ == engine::Variety::norm ? !reading.isInNorm : !reading.isInSystem;
  if (isOther) asked.variety = reading.isInNorm ? engine::Variety::norm : engine::Variety::system;
  if (!explainer_.take(asked)) return false;
  const engine::TracedConjugation& conjugation = explainer_.conjugation();
  const std::string auxiliary = auxiliaryIn(conjugation.trace[reading.slot]);
  if (auxiliary.empty() || reading.form.starts_with(auxiliary + " ")) return true;
  const bool isAvoir = conjugation.flags.auxiliary == engine::kAvoir;
  asked.auxiliary = isAvoir ? engine::kEtre : engine::kAvoir;
  return explainer_.take(asked);
}

ExplainedVerb Explaining::explain(const Reading& reading) {
  const std::string infinitive = finder::infinitiveOf(reading);
  if (!takeVerbOf(reading)) return {.infinitive = infinitive, .match = reading.match};
  ExplainedVerb verb = tableOf(infinitive);
  verb.match = reading.match;
  if (isInfinitive(reading)) return verb;
  verb.isWhole = false;
  verb.place = finder::placeInWords(reading);
  verb.forms = {explainer_.explainComposition(reading.slot)};
  return verb;
}

ExplainedVerb Explaining::tableOf(const std::string& infinitive) {
  explainer::VerbTable table = explainer::tableOf(explainer_);
  return {.infinitive = infinitive,
          .source = std::move(table.source),
          .auxiliary = std::move(table.auxiliary),
          .isWhole = true,
          .forms = std::move(table.forms)};
}

}  // namespace odmiennik::cli
