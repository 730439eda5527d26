// SPDX-License-Identifier: GPL-3.0-or-later
// Reading of what both notations of a model are made of.
#include "tools/compile_data/rule_parts.h"

namespace odmiennik::tools {
namespace {

using groups::Base;
using groups::Condition;
using groups::Endings;

constexpr std::array<Named<Base>, 5> kBases{{{"stem", Base::stem},
                                             {"infinitive", Base::infinitive},
                                             {"je", Base::je},
                                             {"nous", Base::nous},
                                             {"text", Base::text}}};
constexpr std::array<Named<Endings>, 3> kEndings{
    {{"a-endings", Endings::a}, {"i-endings", Endings::i}, {"u-endings", Endings::u}}};

constexpr int kLongestCut = 20;

// The text of a form: the group's mark set, a missing variant spelled as it is shown.
std::string formText(const LineReader& line, Utf8Text text) {
  constexpr Utf8View kGroup = "{g}";
  if (text.empty()) line.fail("an empty form; \"-\" leaves a person as it is");
  if (const auto at = text.find(kGroup); at != Utf8Text::npos)
    text.replace(at, kGroup.size(), 1, groups::kGroupMark);
  if (text.find_first_of("{}") != Utf8Text::npos) line.fail("\"{g}\" is the only mark, once");
  if (text.starts_with("--/")) text.replace(0, 2, " -- ");
  return line.french(text);
}

// "stem", "stem + r", "infinitive less 2", "text rapiéç".
void takeBase(LineReader& line, SourceStep& step) {
  step.base = line.takeNamed(kBases);
  if (step.base == Base::text)
    step.text = line.french(line.takeWord("the text is expected"));
  else if (line.take("less"))
    step.cut = line.takeNumber(1, kLongestCut);
  else if (line.take("+"))
    step.text = line.french(line.takeWord("letters are expected behind \"+\""));
  if (step.cut > 0 && step.base != Base::infinitive && step.base != Base::nous)
    line.fail("letters are cut from infinitive and nous only");
}

void takeEndings(LineReader& line, const RuleTense& tense, SourceStep& step) {
  if (!tense.takesEndings) line.fail("this tense takes no endings");
  step.endings = line.takeNamed(kEndings);
}

}  // namespace

Condition takeCondition(LineReader& line) {
  if (line.take("listed")) return Condition::listed;
  if (line.take("otherwise")) return Condition::otherwise;
  return Condition::always;
}

const RuleTense& takeTense(LineReader& line, const RuleTenses& tenses) {
  for (const RuleTense& tense : tenses)
    if (line.take(tense.name)) return tense;
  line.fail("a tense is expected");
}

void takeForms(LineReader& line, const RuleTense& tense, Action action, Condition condition,
               SourceModel& model) {
  const std::vector<Utf8Text> texts = split(line.takeRest("forms are expected"), '|');
  if (texts.size() != static_cast<std::size_t>(tense.formCount))
    line.fail("a form for every person is expected");
  const std::size_t before = model.steps.size();
  if (tense.builder == Action::pastParticiple) action = Action::pastParticiple;
  for (int person = 0; person < tense.formCount; ++person) {
    const Utf8Text& text = texts[static_cast<std::size_t>(person)];
    if (text == "-") continue;
    model.steps.push_back({.action = action,
                           .condition = condition,
                           .slot = tense.firstSlot + person,
                           .text = formText(line, text)});
  }
  if (model.steps.size() == before) line.fail("no form is written");
}

void dropForms(LineReader& line, const RuleTense& tense, SourceModel& model) {
  line.finish();
  for (int person = 0; person < tense.formCount; ++person)
    model.steps.push_back({.action = Action::writeWhole, .slot = tense.firstSlot + person});
}

SourceStep takeBuilder(LineReader& line, const RuleTense& tense) {
  SourceStep step{.action = tense.builder};
  if (!line.take("default") && !line.isAtEnd()) {
    LineReader first = line.takePart(',');
    const bool isBase = !first.rest().ends_with("-endings");
    isBase ? takeBase(first, step) : takeEndings(first, tense, step);
    first.finish();
    if (isBase && !line.isAtEnd()) takeEndings(line, tense, step);
  }
  line.finish();
  if (tense.needsBase && step.base == Base::none) line.fail("a base is expected");
  if (!tense.needsBase && !tense.takesEndings && step.base != Base::none)
    line.fail("this tense takes no base");
  return step;
}

}  // namespace odmiennik::tools
