// SPDX-License-Identifier: GPL-3.0-or-later
// One run over all forms.
#include "cli/find_run.h"

#include "cli/asked_lines.h"
#include "cli/question.h"

namespace odmiennik::cli {

FindRun::FindRun(const Options& options, Console& console)
    : options_(options),
      console_(console),
      files_(findProgramFiles(options.folder, console)),
      userVerbs_(files_.prefix, files_.userVerbCount, messages_),
      finder_(userVerbs_),
      format_(*readingFormatNamed(options.format->name)) {
  const auto variety = options.isInNorm ? engine::Variety::norm : engine::Variety::system;
  if (options.isExplaining) explaining_.emplace(userVerbs_, options.format->name, variety);
}

ExitStatus FindRun::answerAll() {
  console_.out().text().append(explaining_ ? explaining_->header() : format_.header);
  const auto answerLine = [this](const InputLine& line, Utf8View name) { answer(line, name); };
  const auto lookAgain = [this] {
    finder_.lookAgain();
    sayWhatTheFilesAreLike();
  };
  const bool isRead = answerAsked(console_, options_.infinitives, answerLine, lookAgain, "formy");
  if (files_.hasTrouble || !isRead || messages_.hasFileTrouble()) return ExitStatus::fileTrouble;
  return hasRefused_ ? ExitStatus::verbRefused : ExitStatus::allConjugated;
}

void FindRun::sayWhatTheFilesAreLike() {
  for (const Utf8Text& message : messages_.texts()) console_.complain(message);
  messages_.beginAnswer();
}

// Says whether what was typed has been found, as typed or but for its accents.
bool FindRun::appendAnswer(const Question& question) {
  Utf8Text& out = console_.out().text();
  if (explaining_) return explaining_->append(out, question, readings_, format_.append);
  format_.append(out, question.typed, readings_);
  return !readings_.empty() && readings_.front().match != finder::Match::slip;
}

void FindRun::answer(const InputLine& line, Utf8View lineName) {
  const Question question = questionOf(line);
  readings_.clear();
  if (question.fault == QuestionFault::none) finder_.find(question.infinitive, readings_);
  const bool isFound = appendAnswer(question);
  console_.out().flushIfLarge();
  if (isFound || isBlankInput(line, lineName)) return;
  hasRefused_ = true;
  const Utf8Text place = placeOf(line, lineName);
  if (question.fault != QuestionFault::none)
    console_.complain(place, faultSentence(question));
  else
    console_.complain(place + ": " + nameOf(question.infinitive), "nie znaleziono takiej formy.");
}

}  // namespace odmiennik::cli
