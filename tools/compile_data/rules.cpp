// SPDX-License-Identifier: GPL-3.0-or-later
// The rule tables as a header of constants.
#include <sstream>

#include "tools/compile_data/emit.h"
#include "tools/compile_data/generators.h"
#include "tools/compile_data/rule_source.h"

namespace odmiennik::tools {
namespace {

template <typename Enumeration>
int number(Enumeration value) {
  return static_cast<int>(value);
}

bool isPlain(const std::string& text) {
  return text.find_first_of({'/', ',', groups::kGroupMark}) == std::string::npos;
}

void writeStep(std::ostream& out, const SourceStep& step) {
  out << "    {Action{" << number(step.action) << "}, Condition{" << number(step.condition) << "}, "
      << step.slot << ", Base{" << number(step.base) << "}, " << step.cut << ", Endings{"
      << number(step.endings) << "}, " << (isPlain(step.text) ? "true" : "false") << ", "
      << viewLiteral(step.text) << "},\n";
}

// An array of its own for every model, or nothing for an empty one: C++ has no empty arrays.
void writeModelArrays(std::ostream& out, const SourceModel& model, const std::string& name) {
  if (!model.steps.empty()) {
    out << "inline constexpr Step " << name << "Steps[] = {\n";
    for (const SourceStep& step : model.steps) writeStep(out, step);
    out << "};\n";
  }
  if (model.verbs.empty()) return;
  out << "inline constexpr std::string_view " << name << "Verbs[] = {";
  for (const std::string& verb : model.verbs) out << viewLiteral(verb) << ", ";
  out << "};\n";
}

}  // namespace

void writeModels(std::ostream& out, const std::string& group,
                 const std::vector<SourceModel>& models) {
  std::ostringstream rows;
  for (std::size_t i = 0; i < models.size(); ++i) {
    const SourceModel& model = models[i];
    const std::string name = "k" + group + "Model" + std::to_string(i);
    writeModelArrays(out, model, name);
    rows << "    {" << literal(model.name) << ", " << model.cut << ", "
         << (model.takesGroup ? "true" : "false") << ", "
         << (model.steps.empty() ? "{}" : name + "Steps") << ", "
         << (model.verbs.empty() ? "{}" : name + "Verbs") << "},\n";
  }
  out << "inline constexpr Model k" << group << "Models[] = {\n" << rows.str() << "};\n";
}

namespace {

void writeDispatch(std::ostream& out, const std::string& group,
                   const std::vector<SourceRow>& rows) {
  out << "inline constexpr EndingRow k" << group << "Dispatch[] = {\n";
  for (const SourceRow& row : rows)
    out << "    {" << row.order << ", " << viewLiteral(row.ending) << ", " << row.model << ", "
        << viewLiteral(row.group) << ", Claim{" << number(row.claim) << "}},\n";
  out << "};\n";
}

}  // namespace

void generateRules(const std::string& group, const Paths& sources, std::ostream& out) {
  std::vector<SourceModel> models;
  const RuleTenses tenses = ruleTenses(TenseTable(sources.at(0)));
  for (std::size_t i = 2; i < sources.size(); ++i) readModels(sources[i], tenses, models);
  out << "#pragma once\n#include \"groups/rule_rows.h\"\nnamespace odmiennik::groups::data {\n";
  writeModels(out, group, models);
  writeDispatch(out, group, readDispatch(sources.at(1), models));
  out << "}\n";
}

}  // namespace odmiennik::tools
