// SPDX-License-Identifier: GPL-3.0-or-later
// Carrying out of models.
#include "groups/rule_engine.h"

#include <algorithm>
#include <optional>
#include <string>

#include "engine/flags.h"
#include "engine/simple_tenses.h"

namespace odmiennik::groups {
namespace {

using engine::FormTable;
using engine::less;
namespace slot = engine::slot;

// A model at work on an infinitive: what its steps share.
struct RunningModel {
  FormTable& forms;
  std::string_view infinitive;
  std::string_view stem;
  std::string_view group;
  std::uint8_t auxiliary;
  bool isListed;
};

void appendForm(std::string& form, std::string_view text, const RunningModel& run) {
  const auto mark = text.find(kGroupMark);
  form.append(run.stem).append(text.substr(0, mark));
  if (mark != std::string_view::npos) form.append(run.group).append(text.substr(mark + 1));
}

// Every form of "a/b" or "a, b" gets the stem, but for the text that stands for a missing one.
void writeForms(std::string& target, std::string_view text, const RunningModel& run) {
  target.clear();
  for (;;) {
    const auto end = text.find_first_of("/,");
    const std::string_view form = text.substr(0, end);
    form == engine::kShownMissing ? void(target.append(form)) : appendForm(target, form, run);
    if (end == std::string_view::npos) return;
    const std::string_view separator = text[end] == '/' ? "/" : ", ";
    target.append(separator);
    text.remove_prefix(end + separator.size());
  }
}

void write(const Step& step, const RunningModel& run) {
  std::string& form = run.forms[step.slot];
  step.isPlain ? engine::setTo(form, run.stem, step.text) : writeForms(form, step.text, run);
}

void writePastParticiple(const Step& step, const RunningModel& run) {
  write(step, run);
  if (run.auxiliary == engine::kEtre) run.forms[slot::kPastParticiple].append("(e)");
}

std::string_view baseText(const Step& step, const RunningModel& run) {
  switch (step.base) {
    case Base::stem:
      return run.stem;
    case Base::infinitive:
      return less(run.infinitive, step.cut);
    case Base::je:
      return run.forms[slot::kPresent];
    case Base::nous:
      return less(run.forms[slot::kPresent + 3], step.cut);
    case Base::none:
    case Base::text:
      break;
  }
  return {};
}

// The text that a builder starts from: the base with the step's text behind it.
class BuilderBase {
 public:
  BuilderBase(const Step& step, const RunningModel& run) : text_(baseText(step, run)) {
    if (step.text.empty()) return;
    engine::setTo(joined_(), text_, step.text);
    text_ = joined_();
  }
  [[nodiscard]] std::string_view text() const { return text_; }

 private:
  static std::string& joined_() {
    // Kept between steps for its buffer, so that no verb allocates; it saves nothing else.
    thread_local std::string joined;
    return joined;
  }
  std::string_view text_;
};

void buildPastHistoric(const Step& step, const RunningModel& run) {
  std::optional<engine::PastEndings> endings;
  if (step.endings != Endings::byInfinitive)
    endings = static_cast<engine::PastEndings>(step.endings);
  if (step.base == Base::none) return engine::buildPastHistoric(run.forms, endings);
  engine::buildPastHistoric(run.forms, endings, BuilderBase(step, run).text());
}

void carryOut(const Step& step, const RunningModel& run) {
  switch (step.action) {
    case Action::write:
      return write(step, run);
    case Action::writeWhole:
      return void(run.forms[step.slot].assign(step.text));
    case Action::pastParticiple:
      return writePastParticiple(step, run);
    case Action::imperfect:
      return engine::buildImperfect(run.forms, BuilderBase(step, run).text());
    case Action::future:
      return engine::buildFuture(run.forms, BuilderBase(step, run).text());
    case Action::imperative:
      return engine::buildImperative(run.forms);
    case Action::presentSubjunctive:
      return engine::buildPresentSubjunctive(run.forms);
    case Action::conditional:
      return engine::buildConditional(run.forms);
    case Action::pastHistoric:
      return buildPastHistoric(step, run);
    case Action::presentParticiple:
      return engine::buildPresentParticiple(run.forms);
    case Action::imperfectSubjunctive:
      return engine::buildImperfectSubjunctive(run.forms);
  }
}

bool applies(Condition condition, bool isListed) {
  return condition == Condition::always || (condition == Condition::listed) == isListed;
}

}  // namespace

void applyModel(FormTable& forms, const Model& model, std::string_view group,
                std::uint8_t auxiliary) {
  const std::string_view infinitive = forms[slot::kInfinitive];
  const std::size_t cut = model.cut + (model.takesGroup ? group.size() : 0);
  const bool isListed =
      std::find(model.verbs.begin(), model.verbs.end(), infinitive) != model.verbs.end();
  const RunningModel run{forms, infinitive, less(infinitive, cut), group, auxiliary, isListed};
  for (const Step& step : model.steps)
    if (applies(step.condition, isListed)) carryOut(step, run);
}

}  // namespace odmiennik::groups
