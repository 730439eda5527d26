// SPDX-License-Identifier: GPL-3.0-or-later
// The tenses and their builders.
#include "tools/compile_data/rule_tenses.h"

namespace odmiennik::tools {
namespace {

using groups::Action;

struct BuilderRow {
  std::string_view tense;  // its constant in data/tenses.txt
  Action builder;
  bool needsBase = false;
  bool takesEndings = false;
};

constexpr BuilderRow kBuilders[] = {
    {"Present", Action::write},
    {"Imperfect", Action::imperfect, true},
    {"PastHistoric", Action::pastHistoric, false, true},
    {"Future", Action::future, true},
    {"PresentSubjunctive", Action::presentSubjunctive},
    {"ImperfectSubjunctive", Action::imperfectSubjunctive},
    {"PresentConditional", Action::conditional},
    {"Imperative", Action::imperative},
    {"PresentParticiple", Action::presentParticiple},
    {"PastParticiple", Action::pastParticiple},
};

}  // namespace

RuleTenses ruleTenses(const TenseTable& tenses) {
  RuleTenses known;
  for (const BuilderRow& row : kBuilders) {
    const SourceTense& tense = tenses.of(row.tense);
    known.push_back({tense.sourceName(), tense.firstSlot, tense.formCount, row.builder,
                     row.needsBase, row.takesEndings});
  }
  return known;
}

}  // namespace odmiennik::tools
