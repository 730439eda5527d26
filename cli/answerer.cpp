// SPDX-License-Identifier: GPL-3.0-or-later
// Answers questions.
#include "cli/answerer.h"

namespace odmiennik::cli {

using engine::Outcome;

std::string_view RecordSource::record(std::string_view infinitive) {
  return given_ ? *given_ : index_.record(infinitive);
}

Answerer::Answerer(engine::UserVerbs& userVerbs, MessageLog& messages, AnswerOptions options)
    : messages_(messages),
      options_(options),
      driver_({records_, userVerbs, builtinVerbs_, rules_, messages}) {
  conjugation_.variety = options.variety;
}

formats::Answer Answerer::answer(const Question& question) {
  beginAsJustStarted();
  records_.give(question.record);
  Outcome outcome = Outcome::refused;
  if (question.fault == QuestionFault::none)
    outcome = conjugate(question.infinitive);
  else
    engine::display(conjugation_.forms, conjugation_.flags, false, conjugation_.shown);
  if (outcome == Outcome::reset) showNothing();
  if (options_.auxiliary)
    engine::Driver::toggleAuxiliary(conjugation_, *options_.auxiliary == engine::kAvoir,
                                    options_.isEditing);
  // By the time of the click the pronominal flag has been cleared.
  const bool isPronominal = conjugation_.shown.isPronominal && !options_.auxiliary;
  return {
      question.typed, conjugation_, messages_.texts(), isPronominal, outcome != Outcome::conjugated,
      options_.slots};
}

void Answerer::beginAsJustStarted() {
  messages_.beginAnswer();
  conjugation_.forms.clear();
  std::string normalizedInput = std::move(conjugation_.flags.normalizedInput);
  normalizedInput.clear();  // its buffer is kept
  conjugation_.flags = {};
  conjugation_.flags.normalizedInput = std::move(normalizedInput);
  conjugation_.information = {};
  conjugation_.source = engine::Source::none;
  conjugation_.model = {};
}

Outcome Answerer::conjugate(std::string_view infinitive) {
  return options_.isEditing ? driver_.conjugateForEditing(conjugation_, infinitive)
                            : driver_.conjugate(conjugation_, infinitive);
}

void Answerer::showNothing() {
  engine::Display& shown = conjugation_.shown;
  shown.boxes = {};
  shown.boxes[engine::slot::kInfinitive] = conjugation_.forms[engine::slot::kInfinitive];
  shown.isPronominal = false;
  engine::chooseSubjectPronouns(conjugation_.forms, conjugation_.flags.hAspirate, shown.pronouns);
  engine::chooseSubjunctiveCaptions(conjugation_.forms, shown.captions);
}

}  // namespace odmiennik::cli
