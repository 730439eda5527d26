// SPDX-License-Identifier: GPL-3.0-or-later
// The forms that depart from today's norm, and the groups in which the help tells of them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace odmiennik::tools {

// A form of a verb in the two varieties, with its pronoun; all texts are UTF-8, as the command
// tells them: lire, 2, "il lir", "il lit". A form that the norm lacks is the empty text.
struct Departure {
  std::string verb;
  int slot = 0;
  std::string system;
  std::string norm;
};

// What a form must be to belong to a group: each list that is not empty has to hold one thing that
// is so.
struct GroupConditions {
  std::vector<std::string> verbs;  // "lire", or "-uire": all that end so
  std::vector<int> slots;
  std::vector<std::string> system;   // stands in the system's form
  std::vector<std::string> norm;     // stands in the norm's; "--": the norm has no such form
  std::vector<std::string> without;  // does not stand in the system's form
};

// A line of a group's table: the verb and the forms that are shown of it.
struct GroupExample {
  std::string verb;
  std::vector<int> slots;
};

struct DepartureGroup {
  std::string name;    // for faults
  std::string title;   // markup
  std::string reason;  // markup, written by hand
  GroupConditions conditions;
  std::vector<GroupExample> examples;
};

[[nodiscard]] bool holds(const GroupConditions& conditions, const Departure& departure);

// The group of a departure, the first whose conditions hold, by its position; groups.size() when
// none has it.
[[nodiscard]] std::size_t groupOf(const Departure& departure,
                                  const std::vector<DepartureGroup>& groups);

// Reads what `odmien --departures` has written, its header included. Throws std::runtime_error for
// a line of another shape.
[[nodiscard]] std::vector<Departure> readDepartures(const std::string& path);

// Reads help/odstepstwa.txt, whose head explains the notation. Throws SourceError ("file:line:
// reason").
[[nodiscard]] std::vector<DepartureGroup> readDepartureGroups(const std::string& path);

}  // namespace odmiennik::tools
