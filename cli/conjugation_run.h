// SPDX-License-Identifier: GPL-3.0-or-later
// One run over all verbs asked for.
#pragma once

#include <memory>
#include <optional>

#include "cli/answerer.h"
#include "cli/console.h"
#include "cli/departures.h"
#include "cli/options.h"
#include "cli/program_files.h"
#include "dictionary/user_verbs.h"
#include "engine/utf8.h"
#include "formats/format.h"

namespace odmiennik::cli {

class ConjugationRun {
 public:
  ConjugationRun(const Options& options, Console& console);

  // Answers the infinitives of the options, or every line of standard input.
  [[nodiscard]] ExitStatus answerAll();

 private:
  void answerIndex();
  void answer(const InputLine& line, Utf8View lineName);
  [[nodiscard]] bool isPassedOver(const InputLine& line, Utf8View lineName) const;
  void complainOf(const Question& question, const formats::Answer& answered, const Utf8Text& place);

  const Options& options_;
  Console& console_;
  ProgramFiles files_;
  MessageLog messages_;
  dictionary::UserVerbsFile userVerbs_;
  Answerer answerer_;
  std::unique_ptr<formats::Format> format_;
  std::optional<Departures> departures_;  // listed in the place of the format
  bool hasRefused_ = false;
  bool hasInputTrouble_ = false;
};

}  // namespace odmiennik::cli
