// SPDX-License-Identifier: GPL-3.0-or-later
// Groups of departures as markup.
#include "tools/build_help/departures_page.h"

#include <algorithm>
#include <stdexcept>

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
      throw std::runtime_error("no group has " + departure.verb + ": " + departure.system + ", " +
                               departure.norm);
    members[group].push_back(&departure);
  }
  return members;
}

// "il lir" -> "il " and "lir"; "j'œuvre" -> "j'" and "œuvre"; a form without a pronoun is whole.
struct Phrase {
  std::string_view pronoun, form;
};

Phrase phraseOf(int slot, std::string_view phrase) {
  constexpr int kPersonalSlots = 90;
  if (slot >= kPersonalSlots || phrase.empty()) return {{}, phrase};
  const std::size_t length = phrase.starts_with("j'") ? 2 : phrase.find(' ') + 1;
  return {phrase.substr(0, length), phrase.substr(length)};
}

// The abbreviations of the window are written out.
std::string wordOf(std::string_view pronoun) {
  if (pronoun == "ns ") return "nous ";
  return pronoun == "vs " ? "vous " : std::string(pronoun);
}

// Marked for the tests, which compare it with the engine.
std::string systemMarkup(const Departure& departure) {
  const auto& [pronoun, form] = phraseOf(departure.slot, departure.system);
  return wordOf(pronoun) + "<b class=\"f\" title=\"" + departure.verb + " " +
         std::to_string(departure.slot) + "\">" + std::string(form) + "</b>";
}

std::string normMarkup(const Departure& departure) {
  const auto& [pronoun, form] = phraseOf(departure.slot, departure.norm);
  return wordOf(pronoun) + std::string(form);
}

const Departure& departureOf(const std::string& verb, int slot, const Departures& members,
                             const DepartureGroup& group) {
  const auto found = std::ranges::find_if(members, [&](const Departure* departure) {
    return departure->verb == verb && departure->slot == slot;
  });
  if (found == members.end())
    throw std::runtime_error(group.name + ": " + verb + " " + std::to_string(slot) +
                             " is no departure of this group");
  return **found;
}

void join(std::string& list, const std::string& item) {
  if (!list.empty() && !item.empty()) list += ", ";
  list += item;
}

std::string rowOf(const GroupExample& example, const Departures& members,
                  const DepartureGroup& group) {
  std::string system, norm;
  for (const int slot : example.slots) {
    const Departure& departure = departureOf(example.verb, slot, members, group);
    join(system, systemMarkup(departure));
    join(norm, normMarkup(departure));
  }
  const std::string cell = norm.empty() ? "nie ma tych form" : "<i lang=\"fr\">" + norm + "</i>";
  return "<tr><td lang=\"fr\">" + example.verb + "</td><td lang=\"fr\">" + system + "</td><td>" +
         cell + "</td></tr>\n";
}

std::vector<std::string> verbsOf(const Departures& members) {
  std::vector<std::string> verbs;
  for (const Departure* departure : members)
    if (verbs.empty() || verbs.back() != departure->verb) verbs.push_back(departure->verb);
  return verbs;
}

std::string countsOf(const Departures& members) {
  const std::vector<std::string> verbs = verbsOf(members);
  std::string list;
  if (verbs.size() <= kListedVerbs)
    for (const std::string& verb : verbs) join(list, verb);
  const std::string counts =
      "Czasowników: " + std::to_string(verbs.size()) + ", form: " + std::to_string(members.size());
  return "<p>" + counts + (list.empty() ? "." : ": <i lang=\"fr\">" + list + "</i>.") + "</p>\n";
}

std::string markupOf(const DepartureGroup& group, const Departures& members) {
  if (members.empty()) throw std::runtime_error(group.name + ": no departure is of this group");
  std::string markup = "<h3>" + group.title + "</h3>\n<p>" + group.reason + "</p>\n";
  markup +=
      countsOf(members) +
      "<table class=\"odmiana\">\n<tr><th>Czasownik</th><th>Program</th><th>Norma</th></tr>\n";
  for (const GroupExample& example : group.examples) markup += rowOf(example, members, group);
  return markup + "</table>\n";
}

}  // namespace

std::string departuresMarkup(const std::vector<DepartureGroup>& groups,
                             const std::vector<Departure>& departures) {
  const std::vector<Departures> members = grouped(groups, departures);
  std::string markup;
  for (std::size_t i = 0; i < groups.size(); ++i) markup += markupOf(groups[i], members[i]);
  return markup;
}

std::string withDepartures(std::string page, std::string_view markup) {
  const auto mark = page.find(kDeparturesMark);
  if (mark != std::string::npos) page.replace(mark, kDeparturesMark.size(), markup);
  return page;
}

}  // namespace odmiennik::tools
