// SPDX-License-Identifier: GPL-3.0-or-later
// The look-up of a form: which verbs it may belong to, and where it stands in them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "finder/candidate.h"
#include "finder/letters.h"
#include "finder/own_verbs.h"
#include "finder/phrase.h"
#include "finder/reading.h"

namespace odmiennik::finder {

// Knows the forms of all verbs of the index and those of the user's own, which win over the
// former. One finder serves any number of look-ups, one at a time, and keeps its buffers.
class Finder {
 public:
  explicit Finder(dictionary::UserVerbsFile& userVerbs) : own_(userVerbs) {}

  // Looks whether the user's verbs have changed: asked before one look-up or many. The readings
  // found before are no longer valid then.
  void lookAgain() { own_.lookAgain(); }

  // Sets `readings` to all that `typed` (Windows-1252) may be, best first. What is spelt just so
  // comes first; typed without any accent, what differs by its accents alone follows ("eut": eut,
  // eût). Where neither is found, what is one slip of the finger away; none where nothing is.
  // Example: "fus" -> être, passé simple, je and tu.
  void find(std::string_view typed, Readings& readings);

 private:
  void readPhrase(const Phrase& phrase, Readings& readings);
  void readSlips(const Phrase& phrase, Readings& readings);
  void findWord(std::string_view word, std::vector<Candidate>& found);
  void findFolded(std::string_view folded, std::string_view word, std::vector<Candidate>& found);
  void findSlips(std::string_view word, std::vector<Candidate>& found);
  void append(const Phrase& phrase, Readings& readings);

  OwnVerbs own_;
  Phrases phrases_;
  std::vector<Candidate> words_;        // of the form, or of the participle
  std::vector<Candidate> auxiliaries_;  // of what stands before it
};

}  // namespace odmiennik::finder
