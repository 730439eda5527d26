// What both notations of a model are made of: a tense, a condition, forms, a builder's base.
#pragma once

#include <array>
#include <string_view>

#include "engine/slots.h"
#include "tools/compile_data/line_reader.h"
#include "tools/compile_data/rule_source.h"

namespace odmiennik::tools {

// A tense that a line may name: where its forms go, which builder makes it, and what that builder
// can be told.
struct SourceTense {
  std::string_view name;
  int firstSlot;
  int slotCount;
  groups::Action builder;
  bool needsBase = false;     // a builder that starts from nothing would write bare endings
  bool takesEndings = false;  // "i-endings"
};

namespace slot = engine::slot;
using groups::Action;

inline constexpr std::array<SourceTense, 10> kSourceTenses{{
    {"présent", slot::kPresent, 6, Action::write},
    {"imparfait", slot::kImperfect, 6, Action::imperfect, true},
    {"passé simple", slot::kPastHistoric, 6, Action::pastHistoric, false, true},
    {"futur", slot::kFuture, 6, Action::future, true},
    {"subjonctif présent", slot::kPresentSubjunctive, 6, Action::presentSubjunctive},
    {"subjonctif imparfait", slot::kImperfectSubjunctive, 6, Action::imperfectSubjunctive},
    {"conditionnel", slot::kPresentConditional, 6, Action::conditional},
    {"impératif", slot::kImperative, 3, Action::imperative},
    {"participe présent", slot::kPresentParticiple, 1, Action::presentParticiple},
    {"participe passé", slot::kPastParticiple, 1, Action::pastParticiple},
}};

// "listed" or "otherwise", or neither.
[[nodiscard]] groups::Condition takeCondition(LineReader& line);

[[nodiscard]] const SourceTense& takeTense(LineReader& line);

// Takes the rest of the line as the forms of the tense, "a | b | -", and adds a step for each that
// is written.
void takeForms(LineReader& line, const SourceTense& tense, Action action,
               groups::Condition condition, SourceModel& model);

// Takes the rest of the line as what the tense's builder starts from: "infinitive less 1", "je +
// r", "stem + qu, i-endings", "i-endings", "default", or nothing.
[[nodiscard]] SourceStep takeBuilder(LineReader& line, const SourceTense& tense);

}  // namespace odmiennik::tools
