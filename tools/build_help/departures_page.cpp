// SPDX-License-Identifier: GPL-3.0-or-later
// Groups of departures as markup.
#include "tools/build_help/departures_page.h"

#include <algorithm>

#include "tools/compile_data/source_file.h"

namespace odmiennik::tools {
namespace {

// More verbs than a reader would look through are only counted.
constexpr std::size_t kListedVerbs = 60;

using Departures = std::vector<const Departure*>;

std::vector<Departures> grouped(const std::vector<DepartureGroup>& groups,
                                const std::vector<Departure>& departures) {
  std::vector<Departures> members(groups.size());
  for (const Departure& departure : departures) {
    const std::size_t group = groupOf(departure, groups);
    if (group == groups.size())
      throw fault("no group has " + departure.verb + ": " + departure.system + ", " +
                  departure.norm);
    members[group].push_back(&departure);
  }
  return members;
}

// "il lir" -> "il " and "lir"; "j'œuvre" -> "j'" and "œuvre"; a form without a pronoun is whole.
struct Phrase {
  Utf8View pronoun, form;
};

Phrase phraseOf(int slot, Utf8View phrase) {
  constexpr int kPersonalSlots = 90;
  if (slot >= kPersonalSlots || phrase.empty()) return {{}, phrase};
  const std::size_t length = phrase.starts_with("j'") ? 2 : phrase.find(' ') + 1;
  return {phrase.substr(0, length), phrase.substr(length)};
}

// The abbreviations of the window are written out.
Utf8Text wordOf(Utf8View pronoun) {
  if (pronoun == "ns ") return "nous ";
  return pronoun == "vs " ? "vous " : Utf8Text(pronoun);
}

// Marked for the tests, which compare it with the engine.
Utf8Text systemMarkup(const Departure& departure) {
  const auto& [pronoun, form] = phraseOf(departure.slot, departure.system);
  return wordOf(pronoun) + "<b class=\"f\" title=\"" + departure.verb + " " +
         decimal(departure.slot) + "\">" + Utf8Text(form) + "</b>";
}

Utf8Text normMarkup(const Departure& departure) {
  const auto& [pronoun, form] = phraseOf(departure.slot, departure.norm);
  return wordOf(pronoun) + Utf8Text(form);
}

const Departure& departureOf(const Utf8Text& verb, int slot, const Departures& members,
                             const DepartureGroup& group) {
  const auto found = std::ranges::find_if(members, [&](const Departure* departure) {
    return departure->verb == verb && departure->slot == slot;
  });
  if (found == members.end())
    throw fault(group.name + ": " + verb + " " + decimal(slot) + " is no departure of this group");
  return **found;
}

void join(Utf8Text& list, const Utf8Text& item) {
  if (!list.empty() && !item.empty()) list += ", ";
  list += item;
}

Utf8Text rowOf(const GroupExample& example, const Departures& members,
               const DepartureGroup& group) {
  Utf8Text system, norm;
  for (const int slot : example.slots) {
    const Departure& departure = departureOf(example.verb, slot, members, group);
    join(system, systemMarkup(departure));
    join(norm, normMarkup(departure));
  }
  const Utf8Text cell = norm.empty() ? "nie ma tych form" : "<i lang=\"fr\">" + norm + "</i>";
  return "<tr><td lang=\"fr\">" + example.verb + "</td><td lang=\"fr\">" + system + "</td><td>" +
         cell + "</td></tr>\n";
}

std::vector<Utf8Text> verbsOf(const Departures& members) {
  std::vector<Utf8Text> verbs;
  for (const Departure* departure : members)
    if (verbs.empty() || verbs.back() != departure->verb) verbs.push_back(departure->verb);
  return verbs;
}

Utf8Text countsOf(const Departures& members) {
  const std::vector<Utf8Text> verbs = verbsOf(members);
  Utf8Text list;
  if (verbs.size() <= kListedVerbs)
    for (const Utf8Text& verb : verbs) join(list, verb);
  const Utf8Text counts =
      "Czasowników: " + decimal(verbs.size()) + ", form: " + decimal(members.size());
  return "<p>" + counts + (list.empty() ? "." : ": <i lang=\"fr\">" + list + "</i>.") + "</p>\n";
}

Utf8Text markupOf(const DepartureGroup& group, const Departures& members) {
  if (members.empty()) throw fault(group.name + ": no departure is of this group");
  Utf8Text markup = "<h3>" + group.title + "</h3>\n<p>" + group.reason + "</p>\n";
  markup +=
      countsOf(members) +
      "<table class=\"odmiana\">\n<tr><th>Czasownik</th><th>Program</th><th>Norma</th></tr>\n";
  for (const GroupExample& example : group.examples) markup += rowOf(example, members, group);
  return markup + "</table>\n";
}

}  // namespace

Utf8Text departuresMarkup(const std::vector<DepartureGroup>& groups,
                          const std::vector<Departure>& departures) {
  const std::vector<Departures> members = grouped(groups, departures);
  Utf8Text markup;
  for (std::size_t i = 0; i < groups.size(); ++i) markup += markupOf(groups[i], members[i]);
  return markup;
}

Utf8Text withDepartures(Utf8Text page, Utf8View markup) {
  const auto mark = page.find(kDeparturesMark);
  if (mark != Utf8Text::npos) page.replace(mark, kDeparturesMark.size(), markup);
  return page;
}

}  // namespace odmiennik::tools
