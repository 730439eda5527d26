// SPDX-License-Identifier: GPL-3.0-or-later
// The forms that depart from today's norm.
#pragma once

#include <string>

#include "cli/answerer.h"
#include "engine/utf8.h"

namespace odmiennik::cli {

// Answers each question twice, in the norm and as the system does, and lists where they differ.
class Departures {
 public:
  Departures(engine::UserVerbs& userVerbs, MessageLog& messages,
             const formats::SlotChoice& slots = {});

  // The header of the list.
  static void begin(Utf8Text& out);

  // Appends a line for each form that departs (infinitive, slot, mood, tense, person, the system's
  // phrase, the norm's) and returns the system's answer: for lire "lire\t2\t…\til lir\til lit".
  [[nodiscard]] formats::Answer append(Utf8Text& out, const Question& question);

 private:
  Answerer norm_;
  Answerer system_;
  std::string systemPhrase_, normPhrase_;  // kept between verbs for their buffers only
};

}  // namespace odmiennik::cli
