// SPDX-License-Identifier: GPL-3.0-or-later
// Reading of models: what every block has, and the two notations of its steps.
#include <algorithm>

#include "tools/compile_data/rule_parts.h"

namespace odmiennik::tools {
namespace {

using groups::Condition;

// The common sequence of the models written as tables.
constexpr Action kCommonSequence[] = {
    Action::write,
    Action::imperfect,
    Action::future,
    Action::imperative,
    Action::pastParticiple,
    Action::presentSubjunctive,
    Action::conditional,
    Action::pastHistoric,
    Action::presentParticiple,
    Action::imperfectSubjunctive,
};

// The slot of a step that only says that the sequence leaves its stage out.
constexpr int kOmitted = -1;

constexpr int kLongestCut = 20;

// What has been read of a model, and what may not come again.
struct ModelBlock {
  SourceModel model;
  LineReader head;  // its first line, for faults of the whole block
  Once once;
};

bool hasConditions(const SourceModel& model) {
  return std::any_of(model.steps.begin(), model.steps.end(),
                     [](const SourceStep& step) { return step.condition != Condition::always; });
}

void readVerbs(LineReader& line, ModelBlock& block) {
  while (!line.isAtEnd()) {
    LineReader verb = line.takePart(',');
    const Utf8View text = verb.takeRest("a verb is expected");
    block.once.note(line, text);
    block.model.verbs.push_back(line.french(text));
  }
}

void readCut(LineReader& line, ModelBlock& block) {
  block.once.note(line, "cut");
  block.model.cut = line.takeNumber(0, kLongestCut);
  block.model.takesGroup = line.take("+ group");
  line.finish();
}

// The words of a line up to its forms, as what may stand only once in a model.
Utf8Text keyOf(const LineReader& whole, const LineReader& behindTense) {
  const std::size_t taken = whole.rest().size() - behindTense.rest().size();
  return Utf8Text(trim(whole.rest().substr(0, taken)));
}

// "none TENSE": the verb has no such forms.
void readMissingTense(LineReader& line, const RuleTenses& tenses, ModelBlock& block) {
  const RuleTense& tense = takeTense(line, tenses);
  block.once.note(line, tense.name);
  dropForms(line, tense, block.model);
}

// "[listed|otherwise] build TENSE [from BASE]", "[listed|otherwise] [whole] TENSE forms" or "none
// TENSE".
void readStep(LineReader& line, const RuleTenses& tenses, ModelBlock& block) {
  if (line.take("none")) return readMissingTense(line, tenses, block);
  const LineReader whole = line;
  const Condition condition = takeCondition(line);
  const bool isBuilt = line.take("build");
  const Action action = line.take("whole") ? Action::writeWhole : Action::write;
  const RuleTense& tense = takeTense(line, tenses);
  block.once.note(line, keyOf(whole, line));
  if (!isBuilt) return takeForms(line, tense, action, condition, block.model);
  if (tense.builder == Action::write || tense.builder == Action::pastParticiple)
    line.fail("this tense has no builder");
  line.take("from");
  SourceStep step = takeBuilder(line, tense);
  step.condition = condition;
  block.model.steps.push_back(step);
}

bool isBuilderLine(const LineReader& line, const RuleTense& tense) {
  return (tense.builder == Action::future || tense.builder == Action::pastHistoric) &&
         line.rest().find('|') == Utf8View::npos;
}

// A line of a table: forms, or what the tense is built from, or "none", or "then" and forms.
void readTableLine(LineReader& line, const RuleTenses& tenses, ModelBlock& block) {
  const LineReader whole = line;
  const Condition condition = takeCondition(line);
  const RuleTense& tense = takeTense(line, tenses);
  block.once.note(line, keyOf(whole, line));
  const bool isOmitted = line.take("none");
  const bool isBehindBuilder = line.take("then");
  const bool isBuilt = !isOmitted && isBuilderLine(line, tense);
  if (condition != Condition::always && (isOmitted || isBehindBuilder || isBuilt))
    line.fail("a condition stands before forms only, not before what is built");
  std::vector<SourceStep>& steps = block.model.steps;
  if (isOmitted) {
    steps.push_back({.action = tense.builder, .slot = kOmitted});
    return line.finish();
  }
  if (isBuilt) return steps.push_back(takeBuilder(line, tense));
  if (isBehindBuilder) steps.push_back({.action = tense.builder});
  takeForms(line, tense, Action::write, condition, block.model);
}

// The stage that a step belongs to: a written form belongs to its tense's.
Action stageOf(const SourceStep& step, const RuleTenses& tenses) {
  if (step.action != Action::write) return step.action;
  for (const RuleTense& tense : tenses)
    if (step.slot >= tense.firstSlot && step.slot < tense.firstSlot + tense.formCount)
      return tense.builder;
  return step.action;
}

SourceStep defaultStep(Action stage) {
  SourceStep step{.action = stage};
  if (stage == Action::imperfect) step.base = groups::Base::nous, step.cut = 3;
  return step;
}

// Puts a table's steps into the common sequence and adds the builders that it does not name.
void arrange(SourceModel& model, const RuleTenses& tenses) {
  const std::vector<SourceStep> given = std::move(model.steps);
  model.steps.clear();
  for (const Action stage : kCommonSequence) {
    std::vector<SourceStep> own;
    std::copy_if(given.begin(), given.end(), std::back_inserter(own),
                 [&](const SourceStep& step) { return stageOf(step, tenses) == stage; });
    if (own.empty()) own.push_back(defaultStep(stage));
    std::copy_if(own.begin(), own.end(), std::back_inserter(model.steps),
                 [](const SourceStep& step) { return step.slot != kOmitted; });
  }
}

enum class Notation { steps, table };
constexpr std::array<Named<Notation>, 2> kNotations{
    {{"steps", Notation::steps}, {"table", Notation::table}}};

// Reads the blocks of one file.
class ModelReader {
 public:
  ModelReader(const SourceFile& file, const RuleTenses& tenses, std::vector<SourceModel>& models)
      : file_(file), tenses_(tenses), models_(models) {}

  void read() {
    for (const SourceLine& line : file_.lines) readLine(LineReader(file_, line));
    finishBlock();
  }

 private:
  void readLine(LineReader line) {
    if (!isNotationKnown_) return readNotation(line);
    if (line.take("model")) return beginBlock(line);
    if (blocks_.empty()) line.fail("a model is expected");
    ModelBlock& block = blocks_.back();
    if (line.take("cut")) return readCut(line, block);
    if (!block.once.has("cut")) line.fail("\"cut N\" is expected first");
    if (line.take("verbs")) return readVerbs(line, block);
    notation_ == Notation::steps ? readStep(line, tenses_, block)
                                 : readTableLine(line, tenses_, block);
  }

  void readNotation(LineReader line) {
    if (!line.take("notation")) line.fail("\"notation steps\" or \"notation table\" is expected");
    notation_ = line.takeNamed(kNotations);
    line.finish();
    isNotationKnown_ = true;
  }

  void beginBlock(LineReader line) {
    finishBlock();
    const LineReader head = line;
    const Utf8Text name(line.takeRest("a name is expected"));
    for (const SourceModel& model : models_)
      if (model.name == name) line.fail(inQuotes(name) + " stands twice");
    blocks_.push_back({{.name = name}, head, {}});
  }

  void finishBlock() {
    if (blocks_.empty()) return;
    ModelBlock& block = blocks_.back();
    if (!block.once.has("cut")) block.head.fail("\"cut N\" is missing");
    if (hasConditions(block.model) && block.model.verbs.empty())
      block.head.fail("a condition without a list of verbs");
    if (!hasConditions(block.model) && !block.model.verbs.empty())
      block.head.fail("a list of verbs that no condition asks for");
    if (notation_ == Notation::table) arrange(block.model, tenses_);
    models_.push_back(std::move(block.model));
    blocks_.clear();
  }

  const SourceFile& file_;
  const RuleTenses& tenses_;
  std::vector<SourceModel>& models_;
  std::vector<ModelBlock> blocks_;  // the one being read, or none
  Notation notation_ = Notation::steps;
  bool isNotationKnown_ = false;
};

}  // namespace

void readModels(const std::string& path, const RuleTenses& tenses,
                std::vector<SourceModel>& models) {
  const SourceFile file = readSource(path);
  ModelReader(file, tenses, models).read();
}

}  // namespace odmiennik::tools
