// SPDX-License-Identifier: GPL-3.0-or-later
// One run over all verbs asked for.
#include "cli/conjugation_run.h"

#include "dictionary/spelling.h"
#include "dictionary/verb_index.h"
#include "engine/windows1252.h"

namespace odmiennik::cli {
namespace {

bool wantsColours(const Console& console) {
  return console.isOnTerminal() && environment("NO_COLOR").empty() && environment("TERM") != "dumb";
}

// The verb as a message names it: a line of ten thousand letters would hide the message.
std::string nameOf(std::string_view infinitive) {
  constexpr std::size_t kLongestName = 60;
  std::string name = "„";
  appendPrintable(name, infinitive.substr(0, kLongestName));
  return name + (infinitive.size() > kLongestName ? "…”" : "”");
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
      format_(options.format->make(wantsColours(console))) {
  if (options.listsDepartures) departures_.emplace(userVerbs_, messages_);
}

ExitStatus ConjugationRun::answerAll() {
  std::string& out = console_.out().text();
  departures_ ? Departures::begin(out) : format_->begin(out);
  if (!options_.infinitives.empty())
    answerArguments();
  else
    departures_ ? answerIndex() : answerInput();
  if (files_.hasTrouble || hasInputTrouble_ || messages_.hasFileTrouble())
    return ExitStatus::fileTrouble;
  return hasRefused_ ? ExitStatus::verbRefused : ExitStatus::allConjugated;
}

void ConjugationRun::answerArguments() {
  std::size_t number = 0;
  for (const std::string_view argument : options_.infinitives) {
    const InputLine line{++number, argument.substr(0, kLongestLine),
                         argument.size() > kLongestLine};
    answer(line, "argument");
  }
}

void ConjugationRun::answerInput() {
  // Whoever waits for an answer before asking on gets it: nothing is held back while waiting.
  LineReader reader([this](std::span<char> buffer) {
    console_.out().flush();
    return readInput(buffer);
  });
  InputLine line;
  while (!console_.out().hasFailed() && reader.next(line)) answer(line, "wiersz");
  if (!reader.hasFailed()) return;
  hasInputTrouble_ = true;
  console_.complain("nie można czytać standardowego wejścia.");
}

// Every verb of the index, from a to z.
void ConjugationRun::answerIndex() {
  std::size_t number = 0;
  for (char letter = 'a'; letter <= 'z'; ++letter)
    for (int k = 1; k <= dictionary::verbCount(letter); ++k) {
      const std::string verb = engine::toUtf8(dictionary::verbOfLetter(letter, k));
      answer({++number, verb, false}, "argument");
    }
}

void ConjugationRun::answer(const InputLine& line, std::string_view lineName) {
  const Question question = questionOf(line);
  std::string& out = console_.out().text();
  const Answer answered =
      departures_ ? departures_->append(out, question) : answerer_.answer(question);
  if (!departures_) format_->append(out, answered);
  console_.out().flushIfLarge();
  hasRefused_ = hasRefused_ || answered.isRefused;
  if (question.fault != QuestionFault::none)
    console_.complain(std::string(lineName) + " " + std::to_string(line.number),
                      faultSentence(question));
  for (const std::string& message : answered.messages)
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
