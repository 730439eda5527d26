// Reading of the rules.
#include "tools/compile_data/rule_source.h"

#include <algorithm>
#include <array>

#include "engine/slots.h"
#include "tools/compile_data/source_file.h"

namespace odmiennik::tools {
namespace {

using groups::Action;
using groups::Base;
using groups::Condition;
using groups::Endings;
namespace slot = engine::slot;

// A tense that a line may name: where its forms go and which builder makes it.
struct TenseName {
  std::string_view name;
  int firstSlot;
  int slotCount;
  Action builder;
};
// A longer name stands before the shorter one that it begins with.
constexpr TenseName kTenseNames[] = {
    {"présent", slot::kPresent, 6, Action::write},
    {"imparfait", slot::kImperfect, 6, Action::imperfect},
    {"passé simple", slot::kPastHistoric, 6, Action::pastHistoric},
    {"futur", slot::kFuture, 6, Action::future},
    {"subjonctif présent", slot::kPresentSubjunctive, 6, Action::presentSubjunctive},
    {"subjonctif imparfait", slot::kImperfectSubjunctive, 6, Action::imperfectSubjunctive},
    {"conditionnel", slot::kPresentConditional, 6, Action::conditional},
    {"impératif", slot::kImperative, 3, Action::imperative},
    {"participe présent", slot::kPresentParticiple, 1, Action::presentParticiple},
    {"participe passé", slot::kPastParticiple, 1, Action::pastParticiple},
};

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

// Reads the lines of one file into models.
class ModelReader {
 public:
  explicit ModelReader(const std::string& path) : file_(readSource(path)) {}

  std::vector<SourceModel> readSteps() {
    readModels([this](SourceModel& model, const SourceLine& line) { readStep(model, line); });
    return std::move(models_);
  }

  std::vector<SourceModel> readTables() {
    readModels([this](SourceModel& model, const SourceLine& line) { readTableLine(model, line); });
    for (SourceModel& model : models_) arrange(model);
    return std::move(models_);
  }

 private:
  template <typename ReadLine>
  void readModels(ReadLine readLine) {
    for (const SourceLine& line : file_.lines) {
      std::string_view rest = line.text;
      if (takePrefix(rest, "model "))
        models_.push_back({.name = std::string(rest)});
      else if (models_.empty())
        file_.fail(line, "a model is expected");
      else if (takePrefix(rest, "cut "))
        readCut(models_.back(), words(rest));
      else if (takePrefix(rest, "verbs "))
        for (const std::string& verb : split(rest, ','))
          models_.back().verbs.push_back(french(file_, line, verb));
      else
        readLine(models_.back(), line);
    }
  }

  static void readCut(SourceModel& model, const std::vector<std::string>& parts) {
    model.cut = std::stoi(parts.at(0));
    model.takesGroup = parts.size() == 3 && parts[2] == "group";
  }

  static Condition takeCondition(std::string_view& rest) {
    if (takePrefix(rest, "listed ")) return Condition::listed;
    if (takePrefix(rest, "otherwise ")) return Condition::otherwise;
    return Condition::always;
  }

  const TenseName& takeTense(std::string_view& rest, const SourceLine& line) const {
    for (const TenseName& tense : kTenseNames)
      if (takePrefix(rest, tense.name)) return tense;
    file_.fail(line, "a tense is expected");
  }

  void readStep(SourceModel& model, const SourceLine& line) const {
    std::string_view rest = line.text;
    const Condition condition = takeCondition(rest);
    if (takePrefix(rest, "build ")) {
      const TenseName& tense = takeTense(rest, line);
      takePrefix(rest, "from ");
      SourceStep step = builderStep(tense.builder, rest, line);
      step.condition = condition;
      return model.steps.push_back(step);
    }
    const Action action = takePrefix(rest, "whole ") ? Action::writeWhole : Action::write;
    const TenseName& tense = takeTense(rest, line);
    addForms(model, tense, action, condition, rest, line);
  }

  void addForms(SourceModel& model, const TenseName& tense, Action action, Condition condition,
                std::string_view forms, const SourceLine& line) const {
    const std::vector<std::string> texts = split(forms, '|');
    if (texts.size() != static_cast<std::size_t>(tense.slotCount))
      file_.fail(line, "a form for every person is expected");
    if (tense.builder == Action::pastParticiple) action = Action::pastParticiple;
    for (int person = 0; person < tense.slotCount; ++person) {
      const std::string& text = texts[static_cast<std::size_t>(person)];
      if (text == "-") continue;
      model.steps.push_back({.action = action,
                             .condition = condition,
                             .slot = tense.firstSlot + person,
                             .text = formText(text, line)});
    }
  }

  // The text of a form: the group's mark set, a missing variant spelled as it is shown.
  std::string formText(std::string text, const SourceLine& line) const {
    constexpr std::string_view kGroup = "{g}";
    if (const auto at = text.find(kGroup); at != std::string::npos)
      text.replace(at, kGroup.size(), 1, groups::kGroupMark);
    if (text.starts_with("--/")) text.replace(0, 2, " -- ");
    return french(file_, line, text);
  }

  // "infinitive less 1", "je + r", "stem + qu, i-endings", "i-endings", "default", "".
  SourceStep builderStep(Action action, std::string_view text, const SourceLine& line) const {
    SourceStep step{.action = action};
    std::vector<std::string> parts = text.empty() ? std::vector<std::string>{} : split(text, ',');
    if (!parts.empty() && takeEndings(parts.back(), step)) parts.pop_back();
    if (parts.empty() || parts[0] == "default") return step;
    const std::vector<std::string> base = words(parts[0]);
    step.base = baseNamed(base[0], line);
    if (base.size() == 1) return step;
    if (base[0] == "text")
      step.text = french(file_, line, base[1]);
    else if (base.size() == 3 && base[1] == "less")
      step.cut = std::stoi(base[2]);
    else if (base.size() == 3 && base[1] == "+")
      step.text = french(file_, line, base[2]);
    else
      file_.fail(line, "\"less N\" or \"+ letters\" is expected behind the base");
    return step;
  }

  static bool takeEndings(std::string_view word, SourceStep& step) {
    if (!word.ends_with("-endings")) return false;
    step.endings = word[0] == 'a' ? Endings::a : word[0] == 'i' ? Endings::i : Endings::u;
    return true;
  }

  Base baseNamed(std::string_view name, const SourceLine& line) const {
    if (name == "stem") return Base::stem;
    if (name == "infinitive") return Base::infinitive;
    if (name == "je") return Base::je;
    if (name == "nous") return Base::nous;
    if (name == "text") return Base::text;
    file_.fail(line, "an unknown base");
  }

  // A line of a table: forms, or what the tense is built from, or "none", or "then" and forms.
  void readTableLine(SourceModel& model, const SourceLine& line) const {
    std::string_view rest = line.text;
    const Condition condition = takeCondition(rest);
    const TenseName& tense = takeTense(rest, line);
    if (rest == "none") return model.steps.push_back({.action = tense.builder, .slot = kOmitted});
    const bool isBehindBuilder = takePrefix(rest, "then ");
    const bool isBuilt =
        (tense.builder == Action::future || tense.builder == Action::pastHistoric) &&
        rest.find('|') == std::string_view::npos;
    if (isBuilt || isBehindBuilder)
      model.steps.push_back(builderStep(tense.builder, isBuilt ? rest : "", line));
    if (!isBuilt) addForms(model, tense, Action::write, condition, rest, line);
  }

  // Puts the table's steps into the common sequence and adds the builders that it does not name.
  static void arrange(SourceModel& model) {
    std::vector<SourceStep> given = std::move(model.steps);
    model.steps.clear();
    for (const Action stage : kCommonSequence) {
      std::vector<SourceStep> own;
      std::copy_if(given.begin(), given.end(), std::back_inserter(own),
                   [&](const SourceStep& step) { return stageOf(step) == stage; });
      if (own.empty()) own.push_back(defaultStep(stage));
      std::copy_if(own.begin(), own.end(), std::back_inserter(model.steps),
                   [](const SourceStep& step) { return step.slot != kOmitted; });
    }
  }

  static SourceStep defaultStep(Action stage) {
    SourceStep step{.action = stage};
    if (stage == Action::imperfect) step.base = Base::nous, step.cut = 3;
    return step;
  }

  // The stage that a step belongs to: a written form belongs to its tense's.
  static Action stageOf(const SourceStep& step) {
    if (step.action != Action::write) return step.action;
    for (const TenseName& tense : kTenseNames)
      if (step.slot >= tense.firstSlot && step.slot < tense.firstSlot + tense.slotCount)
        return tense.builder;
    return step.action;
  }

  static constexpr int kOmitted = -1;

  SourceFile file_;
  std::vector<SourceModel> models_;
};

groups::Claim claimNamed(const std::string& word) {
  if (word == "compounds") return groups::Claim::onlyCompounds;
  if (word == "refused") return groups::Claim::refused;
  return groups::Claim::conjugated;
}

}  // namespace

std::vector<SourceModel> readStepModels(const std::string& path) {
  return ModelReader(path).readSteps();
}

std::vector<SourceModel> readTableModels(const std::string& path) {
  return ModelReader(path).readTables();
}

std::vector<SourceRow> readDispatch(const std::string& path) {
  const SourceFile file = readSource(path);
  std::vector<SourceRow> rows;
  for (const SourceLine& line : file.lines) {
    std::vector<std::string> columns = words(line.text);
    if (columns.size() < 3) file.fail(line, "an order, an ending and a model are expected");
    columns.resize(4);
    const groups::Claim claim = claimNamed(columns[3]);
    const bool isGroup = claim == groups::Claim::conjugated;
    rows.push_back({std::stoi(columns[0]), french(file, line, columns[1]), columns[2],
                    isGroup ? french(file, line, columns[3]) : "", claim});
  }
  return rows;
}

}  // namespace odmiennik::tools
