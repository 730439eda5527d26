// SPDX-License-Identifier: GPL-3.0-or-later
// How forms came to be, answered as text, as tab-separated values and as JSON.
#pragma once

#include "cli/question.h"
#include "explainer/verb_table.h"
#include "finder/reading.h"

namespace odmiennik::cli {

// A verb and those of its forms that are explained.
struct ExplainedVerb {
  std::string infinitive;  // as it is typed, with its reflexive pronoun
  Utf8Text source;
  Utf8Text auxiliary;
  Utf8Text place;  // of a form that was asked for: where it stands
  finder::Match match = finder::Match::exact;
  bool isWhole = false;  // the infinitive was asked for: the verb as a table
  std::vector<explainer::Explanation> forms;
};

using ExplainedVerbs = std::vector<ExplainedVerb>;

// Appends to a text in UTF-8, as the formats of a conjugation do.
struct ExplanationFormat {
  Utf8View name;    // as --format calls it
  Utf8View header;  // what stands before the first answer
  void (*append)(Utf8Text& out, Utf8View typed, const ExplainedVerbs& verbs);
};

// The format of that name; nothing when explanations cannot be printed so.
[[nodiscard]] const ExplanationFormat* explanationFormatNamed(Utf8View name);

// Explains what a finder has found.
class Explaining {
 public:
  Explaining(engine::UserVerbs& userVerbs, Utf8View format, engine::Variety variety);

  [[nodiscard]] Utf8View header() const { return format_.header; }

  // Appends how each reading came to be, or for an infinitive how its verb is conjugated. What no
  // reading spells just so, but is conjugated by a rule, is an infinitive too: false when there is
  // nothing of either kind, so that what was typed counts as refused. Readings that are only
  // guessed at are appended as `guess` does.
  bool append(Utf8Text& out, const Question& question, const finder::Readings& readings,
              void (*guess)(Utf8Text&, Utf8View, const finder::Readings&));

 private:
  [[nodiscard]] ExplainedVerb explain(const finder::Reading& reading);
  [[nodiscard]] ExplainedVerb tableOf(const std::string& infinitive);
  bool takeVerbOf(const finder::Reading& reading);

  explainer::Explainer explainer_;
  const ExplanationFormat& format_;
  engine::Variety variety_;
};

}  // namespace odmiennik::cli
