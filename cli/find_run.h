// SPDX-License-Identifier: GPL-3.0-or-later
// One run over all forms whose verbs, or whose coming to be, are asked for.
#pragma once

#include <optional>

#include "cli/console.h"
#include "cli/explaining.h"
#include "cli/line_reader.h"
#include "cli/message_log.h"
#include "cli/options.h"
#include "cli/program_files.h"
#include "cli/reading_formats.h"
#include "dictionary/user_verbs.h"
#include "engine/utf8.h"
#include "finder/finder.h"

namespace odmiennik::cli {

class FindRun {
 public:
  FindRun(const Options& options, Console& console);

  // Answers the forms of the options, or every line of standard input. A form that is found as
  // typed, or but for its accents, is answered; one that is only guessed at counts as refused.
  [[nodiscard]] ExitStatus answerAll();

 private:
  void answer(const InputLine& line, Utf8View lineName);
  bool appendAnswer(const Question& question);
  void sayWhatTheFilesAreLike();

  const Options& options_;
  Console& console_;
  ProgramFiles files_;
  MessageLog messages_;
  dictionary::UserVerbsFile userVerbs_;
  finder::Finder finder_;
  finder::Readings readings_;
  const ReadingFormat& format_;
  std::optional<Explaining> explaining_;  // where forms are explained, not only found
  bool hasRefused_ = false;
};

}  // namespace odmiennik::cli
