// SPDX-License-Identifier: GPL-3.0-or-later
// Reading of the groups, and finding a departure's.
#include "tools/build_help/departure_groups.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "tools/build_help/files.h"
#include "tools/compile_data/line_reader.h"

namespace odmiennik::tools {
namespace {

constexpr int kLastSlot = 100;
constexpr Utf8View kMissing = "--";

enum class Part { group, title, reason, verbs, slots, system, norm, without, example };
constexpr std::array<Named<Part>, 9> kParts{{{"group", Part::group},
                                             {"title", Part::title},
                                             {"reason", Part::reason},
                                             {"verbs", Part::verbs},
                                             {"slots", Part::slots},
                                             {"form", Part::system},
                                             {"norm", Part::norm},
                                             {"without", Part::without},
                                             {"example", Part::example}}};

bool isVerb(const Utf8Text& verb, const Utf8Text& known) {
  return known.starts_with('-') ? verb.ends_with(known.substr(1)) : verb == known;
}

bool isNorm(const Utf8Text& norm, const Utf8Text& part) {
  return part == kMissing ? norm.empty() : norm.find(part) != Utf8Text::npos;
}

template <typename Item, typename Holds>
bool isEmptyOrAny(const std::vector<Item>& items, Holds holds) {
  return items.empty() || std::ranges::any_of(items, holds);
}

void takeTexts(LineReader& line, char separator, std::vector<Utf8Text>& texts) {
  while (!line.isAtEnd())
    texts.emplace_back(line.takePart(separator).takeRest("a text is expected"));
}

void takeSlots(LineReader& line, std::vector<int>& slots) {
  while (!line.isAtEnd()) slots.push_back(line.takeNumber(0, kLastSlot));
}

void takeText(LineReader& line, Utf8Text& text) {
  if (!text.empty()) text += '\n';
  text += line.takeRest("a text is expected");
}

// "lire: 2 14"
GroupExample takeExample(LineReader& line) {
  GroupExample example;
  example.verb = line.takePart(':').takeRest("a verb is expected");
  takeSlots(line, example.slots);
  if (example.slots.empty()) line.fail("the slots of the example are missing");
  return example;
}

void takePart(Part part, LineReader& line, DepartureGroup& group) {
  switch (part) {
    case Part::group:
      return takeText(line, group.name);
    case Part::title:
      return takeText(line, group.title);
    case Part::reason:
      return takeText(line, group.reason);
    case Part::verbs:
      return takeTexts(line, ',', group.conditions.verbs);
    case Part::slots:
      return takeSlots(line, group.conditions.slots);
    case Part::system:
      return takeTexts(line, '|', group.conditions.system);
    case Part::norm:
      return takeTexts(line, '|', group.conditions.norm);
    case Part::without:
      return takeTexts(line, '|', group.conditions.without);
    case Part::example:
      return group.examples.push_back(takeExample(line));
  }
}

// "lire\t2\tmood\ttense\tperson\til lir\til lit"
Departure departureOf(Utf8View line) {
  std::array<Utf8View, 7> fields;
  std::size_t count = 0;
  for (auto end = line.find('\t'); count + 1 < fields.size() && end != Utf8View::npos;
       end = line.find('\t')) {
    fields[count++] = line.substr(0, end);
    line.remove_prefix(end + 1);
  }
  fields[count] = line;
  Departure departure{Utf8Text(fields[0]), -1, Utf8Text(fields[5]), Utf8Text(fields[6])};
  std::from_chars(fields[1].data(), fields[1].data() + fields[1].size(), departure.slot);
  const bool isWhole = count + 1 == fields.size() && departure.slot >= 0;
  if (!isWhole) throw fault("no departure: " + Utf8Text(fields[0]));
  return departure;
}

}  // namespace

bool holds(const GroupConditions& conditions, const Departure& departure) {
  const auto isInSystem = [&](const Utf8Text& part) {
    return departure.system.find(part) != Utf8Text::npos;
  };
  return isEmptyOrAny(conditions.verbs,
                      [&](const Utf8Text& known) { return isVerb(departure.verb, known); }) &&
         isEmptyOrAny(conditions.slots, [&](int slot) { return slot == departure.slot; }) &&
         isEmptyOrAny(conditions.system, isInSystem) &&
         isEmptyOrAny(conditions.norm,
                      [&](const Utf8Text& part) { return isNorm(departure.norm, part); }) &&
         std::ranges::none_of(conditions.without, isInSystem);
}

std::size_t groupOf(const Departure& departure, const std::vector<DepartureGroup>& groups) {
  const auto found = std::ranges::find_if(
      groups, [&](const DepartureGroup& group) { return holds(group.conditions, departure); });
  return static_cast<std::size_t>(found - groups.begin());
}

std::vector<Departure> readDepartures(const std::string& path) {
  const std::string text = readFile(std::filesystem::path(path));
  std::vector<Departure> departures;
  for (std::size_t begin = text.find('\n') + 1; begin < text.size();) {
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    departures.push_back(departureOf(asUtf8(text).substr(begin, end - begin)));
    begin = end + 1;
  }
  return departures;
}

std::vector<DepartureGroup> readDepartureGroups(const std::string& path) {
  const SourceFile file = readSource(path);
  std::vector<DepartureGroup> groups;
  for (const SourceLine& source : file.lines) {
    LineReader line(file, source);
    const Part part = line.takeNamed(kParts);
    if (part == Part::group) groups.emplace_back();
    if (groups.empty()) line.fail("\"group NAME\" is expected first");
    takePart(part, line, groups.back());
  }
  return groups;
}

}  // namespace odmiennik::tools
