// SPDX-License-Identifier: GPL-3.0-or-later
// The shape of the tables that the build makes of data/explanations.
#pragma once

#include <cstdint>

#include "engine/utf8.h"

namespace odmiennik::explainer {

enum class PhrasePart : std::uint8_t;
enum class PhraseId : std::uint8_t;

// "{1}" to "{3}" in the text are to be filled in.
struct PhraseRow {
  PhrasePart part;
  Utf8View text;
};

// A model of the rules as a learner meets it: its verb, and how the rule is called.
struct ModelVerb {
  Utf8View model;
  Utf8View verb;
  Utf8View rule;
  bool hasEndings;  // what stands behind the stem is an ending, not the rest of the form
};

}  // namespace odmiennik::explainer
