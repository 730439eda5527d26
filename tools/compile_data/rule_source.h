// SPDX-License-Identifier: GPL-3.0-or-later
// The source of the rules: models as steps, and dispatches that choose among them.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "groups/rule_rows.h"
#include "tools/compile_data/rule_tenses.h"

namespace odmiennik::tools {

// A step with its own text, before it becomes a row of a table.
struct SourceStep {
  groups::Action action{};
  groups::Condition condition = groups::Condition::always;
  int slot = 0;
  groups::Base base = groups::Base::none;
  int cut = 0;
  groups::Endings endings = groups::Endings::byInfinitive;
  std::string text;  // Windows-1252
};

struct SourceModel {
  Utf8Text name;
  int cut = 0;
  bool takesGroup = false;
  std::vector<SourceStep> steps;
  std::vector<std::string> verbs;  // Windows-1252
};

struct SourceRow {
  int order = 0;
  std::string ending;     // Windows-1252
  std::size_t model = 0;  // position among the models
  std::string group;      // Windows-1252
  groups::Claim claim = groups::Claim::conjugated;
};

// Adds the models of a file, in the notation that its first line names: "notation steps", the steps
// in the order in which they are done, or "notation table", what differs from the common sequence.
void readModels(const std::string& path, const RuleTenses& tenses,
                std::vector<SourceModel>& models);

// Writes the models as a constant table, "k", `group` and "Models".
void writeModels(std::ostream& out, const std::string& group,
                 const std::vector<SourceModel>& models);

[[nodiscard]] std::vector<SourceRow> readDispatch(const std::string& path,
                                                  const std::vector<SourceModel>& models);

}  // namespace odmiennik::tools
