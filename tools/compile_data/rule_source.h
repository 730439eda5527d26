// The source of the rules: models as steps, and dispatches that choose among them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "groups/rule_rows.h"

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
  std::string name;  // UTF-8
  int cut = 0;
  bool takesGroup = false;
  std::vector<SourceStep> steps;
  std::vector<std::string> verbs;  // Windows-1252
};

struct SourceRow {
  int order = 0;
  std::string ending;  // Windows-1252
  std::string model;   // UTF-8; "-" for a refused ending
  std::string group;   // Windows-1252
  groups::Claim claim = groups::Claim::conjugated;
};

// Models written as steps in the order in which they are done.
[[nodiscard]] std::vector<SourceModel> readStepModels(const std::string& path);

// Models written as a table of what differs from the common sequence.
[[nodiscard]] std::vector<SourceModel> readTableModels(const std::string& path);

[[nodiscard]] std::vector<SourceRow> readDispatch(const std::string& path);

}  // namespace odmiennik::tools
