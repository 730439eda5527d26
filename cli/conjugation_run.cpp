// SPDX-License-Identifier: GPL-3.0-or-later
// One run over all verbs asked for.
#include "cli/conjugation_run.h"

#include "cli/asked_lines.h"
#include "dictionary/spelling.h"
#include "dictionary/verb_index.h"
#include "engine/windows1252.h"

namespace odmiennik::cli {
namespace {

bool wantsColours(Colours colours, const Console& console) {
  if (colours != Colours::automatic) return colours == Colours::always;
  return console.isOnTerminal() && environment("NO_COLOR").empty() && environment("TERM") != "dumb";
}

}  // namespace

ConjugationRun::ConjugationRun(const Options& options, Console& console)
    : options_(options),
      console_(console),
      files_(findProgramFiles(options.folder, console)),
      userVerbs_(files_.prefix, files_.userVerbCount, messages_),
      answerer_(userVerbs_, messages_,
                {options.isEditing, options.auxiliary,
                 options.isInNorm ? engine::Variety::norm : engine::Variety::system}),
      format_(options.format->make(wantsColours(options.colours, console))) {
  if (options.listsDepartures) departures_.emplace(userVerbs_, messages_);
}

ExitStatus ConjugationRun::answerAll() {
  Utf8Text& out = console_.out().text();
  departures_ ? Departures::begin(out) : format_->begin(out);
  const auto answerLine = [this](const InputLine& line, Utf8View name) { answer(line, name); };
  if (departures_ && options_.infinitives.empty())
    answerIndex();
  else
    hasInputTrouble_ = !answerAsked(console_, options_.infinitives, answerLine);
  if (!departures_) format_->end(out);
  if (files_.hasTrouble || hasInputTrouble_ || messages_.hasFileTrouble())
    return ExitStatus::fileTrouble;
  return hasRefused_ ? ExitStatus::verbRefused : ExitStatus::allConjugated;
}

// Every verb of the index, from a to z.
void ConjugationRun::answerIndex() {
  std::size_t number = 0;
  for (char letter = 'a'; letter <= 'z'; ++letter)
    for (int k = 1; k <= dictionary::verbCount(letter); ++k) {
      const Utf8Text verb = engine::toUtf8(dictionary::verbOfLetter(letter, k));
      answer({++number, verb, false}, "argument");
    }
}

void ConjugationRun::answer(const InputLine& line, Utf8View lineName) {
  const Question question = questionOf(line);
  Utf8Text& out = console_.out().text();
  const formats::Answer answered =
      departures_ ? departures_->append(out, question) : answerer_.answer(question);
  if (!departures_) format_->append(out, answered);
  console_.out().flushIfLarge();
  hasRefused_ = hasRefused_ || answered.isRefused;
  if (question.fault != QuestionFault::none)
    console_.complain(Utf8Text(lineName) + " " + decimal(line.number), faultSentence(question));
  for (const Utf8Text& message : answered.messages)
    console_.complain(nameOf(question.infinitive), message);
  if (answered.isRefused) suggestSpelling(question);
}

// The window's message stays word for word; only the command adds what may have been meant.
void ConjugationRun::suggestSpelling(const Question& question) {
  const std::string meant = dictionary::otherSpelling(question.infinitive);
  if (meant.empty()) return;
  console_.complain(nameOf(question.infinitive), "Czy chodziło o „" + engine::toUtf8(meant) + "”?");
}

}  // namespace odmiennik::cli
