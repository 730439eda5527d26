// SPDX-License-Identifier: GPL-3.0-or-later
// What both notations of a model are made of: a tense, a condition, forms, a builder's base.
#pragma once

#include "tools/compile_data/line_reader.h"
#include "tools/compile_data/rule_source.h"

namespace odmiennik::tools {

using groups::Action;

// "listed" or "otherwise", or neither.
[[nodiscard]] groups::Condition takeCondition(LineReader& line);

[[nodiscard]] const RuleTense& takeTense(LineReader& line, const RuleTenses& tenses);

// Takes the rest of the line as the forms of the tense, "a | b | -", and adds a step for each that
// is written.
void takeForms(LineReader& line, const RuleTense& tense, Action action, groups::Condition condition,
               SourceModel& model);

// Adds a step for each form of the tense that leaves it empty: the verb has none of them.
void dropForms(LineReader& line, const RuleTense& tense, SourceModel& model);

// Takes the rest of the line as what the tense's builder starts from: "infinitive less 1", "je +
// r", "stem + qu, i-endings", "i-endings", "default", or nothing.
[[nodiscard]] SourceStep takeBuilder(LineReader& line, const RuleTense& tense);

}  // namespace odmiennik::tools
