// SPDX-License-Identifier: GPL-3.0-or-later
// The forms that depart from today's norm, and the groups in which the help tells of them.
#pragma once

#include <string>
#include <vector>

#include "engine/utf8.h"

namespace odmiennik::tools {

// A form of a verb in the two varieties, with its pronoun; as the command tells them:
// lire, 2, "il lir", "il lit". A form that the norm lacks is the empty text.
struct Departure {
  Utf8Text verb;
  int slot = 0;
  Utf8Text system;
  Utf8Text norm;
};

// What a form must be to belong to a group: each list that is not empty has to hold one thing that
// is so.
struct GroupConditions {
  std::vector<Utf8Text> verbs;  // "lire", or "-uire": all that end so
  std::vector<int> slots;
  std::vector<Utf8Text> system;   // stands in the system's form
  std::vector<Utf8Text> norm;     // stands in the norm's; "--": the norm has no such form
  std::vector<Utf8Text> without;  // does not stand in the system's form
};

// A line of a group's table: the verb and the forms that are shown of it.
struct GroupExample {
  Utf8Text verb;
  std::vector<int> slots;
};

struct DepartureGroup {
  Utf8Text name;    // for faults
  Utf8Text title;   // markup
  Utf8Text reason;  // markup, written by hand
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
