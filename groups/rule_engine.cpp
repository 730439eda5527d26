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
using engine::Maker;
using engine::Part;
using engine::PieceKind;
using engine::TracedForms;
namespace slot = engine::slot;

// A model at work on an infinitive: what its steps share.
template <typename Forms>
struct RunningModel {
  Forms& forms;
  std::string_view infinitive;
  std::string_view stem;
  std::string_view group;
  std::uint8_t auxiliary;
  bool isListed;
};

// The stem is one part, what the row puts behind it another, in three pieces where the group's
// consonants stand between.
template <typename Forms>
void appendForm(int slot, std::string_view text, const RunningModel<Forms>& run) {
  const auto mark = text.find(kGroupMark);
  append(run.forms, slot, engine::stem(run.stem));
  append(run.forms, slot, {PieceKind::text, text.substr(0, mark)});
  if (mark == std::string_view::npos) return;
  append(run.forms, slot, {PieceKind::text, run.group});
  append(run.forms, slot, {PieceKind::text, text.substr(mark + 1)});
}

// Every form of "a/b" or "a, b" gets the stem, but for the text that stands for a missing one.
template <typename Forms>
void writeForms(int slot, std::string_view text, const RunningModel<Forms>& run) {
  beginForm(run.forms, slot);
  for (;;) {
    const auto end = text.find_first_of("/,");
    const std::string_view form = text.substr(0, end);
    form == engine::kShownMissing ? append(run.forms, slot, engine::whole(form))
                                  : appendForm(slot, form, run);
    if (end == std::string_view::npos) return;
    const std::string_view separator = text[end] == '/' ? "/" : ", ";
    append(run.forms, slot, {PieceKind::separator, separator});
    text.remove_prefix(end + separator.size());
  }
}

template <typename Forms>
void write(const Step& step, const RunningModel<Forms>& run) {
  noteMaker(run.forms, Maker::model);
  noteOrigin(run.forms, slot::kInfinitive, run.infinitive.size() - run.stem.size());
  step.isPlain ? put(run.forms, step.slot, engine::stem(run.stem), Part{PieceKind::text, step.text})
               : writeForms(step.slot, step.text, run);
}

template <typename Forms>
void writeWhole(const Step& step, const RunningModel<Forms>& run) {
  noteMaker(run.forms, Maker::wholeText);
  copy(run.forms, step.slot, step.text);
}

template <typename Forms>
void writePastParticiple(const Step& step, const RunningModel<Forms>& run) {
  write(step, run);
  if (run.auxiliary == engine::kEtre)
    append(run.forms, slot::kPastParticiple, {PieceKind::agreement, "(e)"});
}

template <typename Forms>
std::string_view baseText(const Step& step, const RunningModel<Forms>& run) {
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

// The same for the trace: the slot that the base is taken from, and how much of it is cut.
template <typename Forms>
void noteBase(const Step& step, const RunningModel<Forms>& run) {
  switch (step.base) {
    case Base::stem:
      return noteOrigin(run.forms, slot::kInfinitive, run.infinitive.size() - run.stem.size(),
                        step.text);
    case Base::infinitive:
      return noteOrigin(run.forms, slot::kInfinitive, step.cut, step.text);
    case Base::je:
      return noteOrigin(run.forms, slot::kPresent, 0, step.text);
    case Base::nous:
      return noteOrigin(run.forms, slot::kPresent + 3, step.cut, step.text);
    case Base::none:
    case Base::text:
      return noteOrigin(run.forms, engine::kNoSlot, 0, step.text);
  }
}

// The text that a builder starts from: the base with the step's text behind it.
class BuilderBase {
 public:
  template <typename Forms>
  BuilderBase(const Step& step, const RunningModel<Forms>& run) : text_(baseText(step, run)) {
    noteBase(step, run);
    if (step.text.empty()) return;
    engine::setTo(joined_, text_, step.text);
    text_ = joined_;
  }
  BuilderBase(const BuilderBase&) = delete;
  BuilderBase& operator=(const BuilderBase&) = delete;
  [[nodiscard]] std::string_view text() const { return text_; }

 private:
  std::string joined_;
  std::string_view text_;
};

template <typename Forms>
void buildPastHistoric(const Step& step, const RunningModel<Forms>& run) {
  std::optional<engine::PastEndings> endings;
  if (step.endings != Endings::byInfinitive)
    endings = static_cast<engine::PastEndings>(step.endings);
  if (step.base == Base::none) return engine::buildPastHistoric(run.forms, endings);
  engine::buildPastHistoric(run.forms, endings, BuilderBase(step, run).text());
}

template <typename Forms>
void carryOut(const Step& step, const RunningModel<Forms>& run) {
  switch (step.action) {
    case Action::write:
      return write(step, run);
    case Action::writeWhole:
      return writeWhole(step, run);
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

template <typename Forms>
void applyModel(Forms& forms, const Model& model, std::string_view group, std::uint8_t auxiliary,
                bool isOfNorm) {
  const std::string_view infinitive = forms[slot::kInfinitive];
  const std::size_t cut = model.cut + (model.takesGroup ? group.size() : 0);
  const bool isListed =
      std::find(model.verbs.begin(), model.verbs.end(), infinitive) != model.verbs.end();
  const RunningModel<Forms> run{forms, infinitive, less(infinitive, cut),
                                group, auxiliary,  isListed};
  for (const Step& step : model.steps) {
    if (!applies(step.condition, isListed)) continue;
    noteStep(forms, model.name, isOfNorm, step.condition == Condition::listed);
    carryOut(step, run);
  }
}

template void applyModel(FormTable&, const Model&, std::string_view, std::uint8_t, bool);
template void applyModel(TracedForms&, const Model&, std::string_view, std::uint8_t, bool);

}  // namespace odmiennik::groups
