// SPDX-License-Identifier: GPL-3.0-or-later
// One run over all verbs asked for.
#include "cli/conjugation_run.h"

#include "cli/asked_lines.h"
#include "dictionary/messages.h"
#include "dictionary/spelling.h"
#include "dictionary/verb_index.h"
#include "engine/normalization.h"
#include "engine/windows1252.h"

namespace odmiennik::cli {
namespace {

bool wantsColours(Colours colours, const Console& console) {
  if (colours != Colours::automatic) return colours == Colours::always;
  return console.isOnTerminal() && environment("NO_COLOR").empty() && environment("TERM") != "dumb";
}

// Whether there is a blank that neither a reflexive pronoun nor its adverb brings along (s'en
// aller, s'y connaître).
bool isOfSeveralWords(std::string_view infinitive) {
  const std::string key = engine::lookupKey(infinitive);
  std::string_view verb = engine::trimmed(key);
  std::string whole;
  engine::normalize(infinitive, whole);
  const bool isReflexive = engine::hasReflexivePrefix(whole);
  if (isReflexive && verb.starts_with("en ")) verb.remove_prefix(3);
  if (isReflexive && verb.starts_with("y ")) verb.remove_prefix(2);
  return verb.find(' ') != std::string_view::npos;
}

}  // namespace

ConjugationRun::ConjugationRun(const Options& options, Console& console)
    : options_(options),
      console_(console),
      files_(findProgramFiles(options.folder, console)),
      userVerbs_(files_.prefix, files_.userVerbCount, messages_),
      answerer_(userVerbs_, messages_,
                {options.isEditing, options.auxiliary,
                 options.isInNorm ? engine::Variety::norm : engine::Variety::system,
                 slotsOf(options.tenses, options.persons)}),
      format_(options.format->make(wantsColours(options.colours, console))) {
  if (options.listsDepartures)
    departures_.emplace(userVerbs_, messages_, slotsOf(options.tenses, options.persons));
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
  if (isPassedOver(line, lineName)) return;
  const Question question = questionOf(line);
  Utf8Text& out = console_.out().text();
  const formats::Answer answered =
      departures_ ? departures_->append(out, question) : answerer_.answer(question);
  if (!departures_) format_->append(out, answered);
  console_.out().flushIfLarge();
  hasRefused_ = hasRefused_ || answered.isRefused;
  const Utf8Text place = placeOf(line, lineName);
  if (question.fault != QuestionFault::none)
    console_.complain(place, faultSentence(question));
  else
    complainOf(question, answered, lineName == kInputLine ? place + ": " : Utf8Text());
}

bool ConjugationRun::isPassedOver(const InputLine& line, Utf8View lineName) const {
  const bool isAnswered = !departures_ && format_->answersBlankLines();
  return !isAnswered && isBlankInput(line, lineName);
}

// The window's messages stay word for word; only the command adds what may have been meant.
void ConjugationRun::complainOf(const Question& question, const formats::Answer& answered,
                                const Utf8Text& place) {
  const Utf8Text subject = place + nameOf(question.infinitive);
  for (const Utf8Text& message : answered.messages) console_.complain(subject, message);
  const bool isOwn = answered.conjugation.source == engine::Source::user;
  if (!isOwn && isOfSeveralWords(question.infinitive))
    console_.complain(subject, dictionary::messageText(dictionary::MessageId::severalWords));
  const std::string meant =
      answered.isRefused ? dictionary::otherSpelling(question.infinitive) : std::string();
  if (!meant.empty()) console_.complain(subject, "Czy chodziło o „" + engine::toUtf8(meant) + "”?");
}

}  // namespace odmiennik::cli
