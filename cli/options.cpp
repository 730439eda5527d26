// SPDX-License-Identifier: GPL-3.0-or-later
// The command line as a table of options.
#include "cli/options.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>

#include "cli/help.h"
#include "cli/index_queries.h"
#include "cli/reading_formats.h"
#include "engine/flags.h"

namespace odmiennik::cli {
namespace {

constexpr std::size_t kFormatNamesSize = [] {
  std::size_t size = std::size(formats::kFormats) - 1;
  for (const formats::FormatRow& row : formats::kFormats) size += row.name.size();
  return size;
}();

// "text|tsv|json"
constexpr auto kFormatNames = [] {
  std::array<char, kFormatNamesSize> names{};
  auto end = names.begin();
  for (const formats::FormatRow& row : formats::kFormats) {
    if (end != names.begin()) *end++ = '|';
    end = std::copy(row.name.begin(), row.name.end(), end);
  }
  return names;
}();

bool takeFormat(Options& options, Utf8View value) {
  const auto row = std::ranges::find(formats::kFormats, value, &formats::FormatRow::name);
  if (row == std::end(formats::kFormats)) return false;
  options.format = row;
  return true;
}

bool takeAuxiliary(Options& options, Utf8View value) {
  if (value == "avoir")
    options.auxiliary = engine::kAvoir;
  else if (value == "etre" || value == "être")
    options.auxiliary = engine::kEtre;
  else
    return false;
  return true;
}

bool takeFolder(Options& options, Utf8View value) {
  options.folder = value;
  return !value.empty();
}

bool takeColours(Options& options, Utf8View value) {
  constexpr Utf8View kNames[] = {"auto", "always", "never"};
  const auto name = std::ranges::find(kNames, value);
  options.colours = static_cast<Colours>(name - std::begin(kNames));
  return name != std::end(kNames);
}

bool takeTense(Options& options, Utf8View name) { return addTense(options.tenses, name); }
bool takePerson(Options& options, Utf8View name) { return addPerson(options.persons, name); }

Utf8Text namesOfPersons() { return "je, tu, il, nous, vous, ils"; }

bool takeEditing(Options& options, Utf8View) { return options.isEditing = true; }

template <Query Asked>
bool ask(Options& options, Utf8View text) {
  options.query = Asked;
  options.queryText = text;
  return true;
}

bool takeNorm(Options& options, Utf8View) { return options.isInNorm = true; }
bool takeFinding(Options& options, Utf8View) { return options.isFinding = true; }
bool takeExplaining(Options& options, Utf8View) { return options.isExplaining = true; }
bool takeDepartures(Options& options, Utf8View) { return options.listsDepartures = true; }

constexpr OptionRow kOptions[] = {
    {"--format",
     'f',
     {kFormatNames.data(), kFormatNames.size()},
     takeFormat,
     "postać wyniku (domyślnie text); też -f"},
    {"--tenses", 0, "CZASY", takeTense, "tylko te czasy, po przecinku: \"imparfait,subjonctif\"",
     namesOfTenses},
    {"--persons", 0, "je|tu|il|nous|vous|ils", takePerson,
     "tylko te osoby, po przecinku: nous,vous", namesOfPersons},
    {"--folder", 0, "KATALOG", takeFolder, "katalog programu z czasownikami użytkownika"},
    {"--auxiliary", 0, "avoir|etre", takeAuxiliary,
     "przełącz potem czasownik posiłkowy czasów złożonych"},
    {"--color", 0, "auto|always|never", takeColours, "kolory w postaci text (domyślnie auto)"},
    {"--edit", 0, "", takeEditing, "odmień jak przy edycji czasownika"},
    {"--norm", 0, "", takeNorm, "odmień według dzisiejszej normy"},
    {"--departures", 0, "", takeDepartures, "wypisz formy odbiegające od normy (lub całego spisu)"},
    {"--find", 0, "", takeFinding, "podaj, jakiego czasownika i jakimi formami są słowa"},
    {"--explain", 0, "", takeExplaining, "wyjaśnij, jak powstały formy lub odmiana czasownika"},
    {"--list", 0, "POCZĄTEK", ask<appendVerbsBeginning>, "wypisz czasowniki spisu o tym początku"},
    {"--complete", 0, "POCZĄTEK", ask<appendCompletion>, "dokończ bezokolicznik według spisu"},
    {"--record", 0, "BEZOKOLICZNIK", ask<appendRecord>, "wypisz dane czasownika ze spisu"},
    {"--slots", 0, "", ask<appendSlots>, "wypisz pola odmiany: numer, tryb, czas, osoba"},
    {"--strings", 0, "", ask<appendStrings>, "wypisz ponumerowane teksty programu"},
    {"--help", 'h', "", ask<appendHelp>, "wyświetl tę pomoc; też -h"},
    {"--version", 'V', "", ask<appendVersion>, "wyświetl wersję programu; też -V"},
};

const OptionRow* rowOf(Utf8View name) {
  for (const OptionRow& row : kOptions)
    if (row.name == name) return &row;
  return nullptr;
}

const OptionRow* rowOf(char letter) {
  for (const OptionRow& row : kOptions)
    if (row.letter == letter) return &row;
  return nullptr;
}

Utf8Text quoted(Utf8View text) { return "„" + Utf8Text(text) + "”"; }

// An option as it stands on the command line, with the value that is joined to it.
struct WrittenOption {
  Utf8View name;
  const OptionRow* row;
  std::optional<Utf8View> value;
};

// "--format=json", "-fjson"
WrittenOption readOption(Utf8View argument) {
  if (!argument.starts_with("--")) {
    const OptionRow* row = rowOf(argument[1]);
    if (row == nullptr || argument.size() == 2) return {argument, row, std::nullopt};
    return {argument.substr(0, 2), row, argument.substr(2)};
  }
  const auto equals = argument.find('=');
  const Utf8View name = argument.substr(0, equals);
  if (equals == Utf8View::npos) return {name, rowOf(name), std::nullopt};
  return {name, rowOf(name), argument.substr(equals + 1)};
}

// Gives the option its value, or its values one by one; the one that it does not take.
std::optional<Utf8View> refusedPart(const OptionRow& row, Options& options, Utf8View value) {
  for (;;) {
    const auto comma = row.values == nullptr ? Utf8View::npos : value.find(',');
    const Utf8View part = value.substr(0, comma);
    if (!row.apply(options, part)) return part;
    if (comma == Utf8View::npos) return std::nullopt;
    value.remove_prefix(comma + 1);
  }
}

// The names of the options that stand on a command line.
using Given = std::vector<Utf8View>;

// Reads the option that `rest` begins with and takes it off; an error sentence or nothing.
Utf8Text takeOption(Options& options, Given& given, std::span<const Utf8Text>& rest) {
  const auto [name, row, joined] = readOption(rest.front());
  rest = rest.subspan(1);
  if (row == nullptr) return "nieznana opcja " + quoted(name) + ".";
  Utf8View value;
  if (joined) {
    if (row->valueName.empty()) return "opcja " + quoted(name) + " nie przyjmuje wartości.";
    value = *joined;
  } else if (!row->valueName.empty()) {
    if (rest.empty()) return "opcja " + quoted(name) + " wymaga wartości.";
    value = rest.front();
    rest = rest.subspan(1);
  }
  const Query before = options.query;
  if (const auto refused = refusedPart(*row, options, value))
    return "niewłaściwa wartość " + quoted(*refused) + " opcji " + quoted(name) +
           (row->values == nullptr ? "." : "; możliwe: " + row->values() + Utf8Text("."));
  if (before != nullptr && options.query != before)
    return "opcja " + quoted(name) + " nie łączy się z poprzednimi.";
  const bool isDefault = row->apply == takeFormat && options.format == &formats::kFormats[0];
  if (!isDefault) given.push_back(row->name);
  return {};
}

// Of these a command line takes one.
constexpr Utf8View kTasks[] = {"--edit", "--norm",     "--departures", "--find",  "--explain",
                               "--list", "--complete", "--record",     "--slots", "--strings"};

// What a task has no use for.
struct Useless {
  Utf8View task;
  std::span<const Utf8View> options;
};
constexpr Utf8View kShape[] = {"--format", "--auxiliary"};
constexpr Utf8View kOfConjugations[] = {"--format", "--auxiliary", "--tenses", "--persons"};
constexpr Utf8View kOfForms[] = {"--auxiliary", "--tenses", "--persons"};
constexpr Useless kUseless[] = {{"--departures", kShape},        {"--find", kOfForms},
                                {"--explain", kOfForms},         {"--list", kOfConjugations},
                                {"--complete", kOfConjugations}, {"--record", kOfConjugations},
                                {"--slots", kOfConjugations},    {"--strings", kOfConjugations}};

bool isAmong(std::span<const Utf8View> names, Utf8View name) {
  return std::ranges::find(names, name) != names.end();
}

bool isUselessFor(Utf8View task, Utf8View option) {
  const auto* row = std::ranges::find(kUseless, task, &Useless::task);
  return row != std::end(kUseless) && isAmong(row->options, option);
}

// What a form is like in today's norm is explained too.
bool areExplainedTogether(Utf8View one, Utf8View other) {
  return (one == "--explain" && other == "--norm") || (one == "--norm" && other == "--explain");
}

bool excludeEachOther(Utf8View one, Utf8View other) {
  if (areExplainedTogether(one, other)) return false;
  if (isAmong(kTasks, one) && isAmong(kTasks, other)) return one != other;
  return isUselessFor(one, other) || isUselessFor(other, one);
}

// Of options that cannot be had together the later one is named first.
Utf8Text faultOfChoice(std::span<const Utf8View> given) {
  for (std::size_t later = 1; later < given.size(); ++later)
    for (const Utf8View before : given.first(later))
      if (excludeEachOther(given[later], before))
        return "opcja " + quoted(given[later]) + " nie łączy się z " + quoted(before) + ".";
  return {};
}

Utf8Text faultOfSlots(const Options& options) {
  if (!slotsOf(options.tenses, options.persons).isEmpty()) return {};
  return "żaden z wybranych czasów nie ma wybranych osób.";
}

Utf8Text faultOfFormat(const Options& options) {
  const bool isOfForms = options.isFinding || options.isExplaining;
  if (!isOfForms || readingFormatNamed(options.format->name) != nullptr) return {};
  const Utf8View option = options.isFinding ? "--find" : "--explain";
  return "opcja " + quoted(option) + " nie zna postaci " + quoted(options.format->name) + ".";
}

bool isOption(Utf8View argument) { return argument.size() > 1 && argument[0] == '-'; }

}  // namespace

ParsedOptions parseOptions(std::span<const Utf8Text> arguments) {
  ParsedOptions parsed;
  Options& options = parsed.options;
  Given given;
  bool areOptionsOver = false;
  while (!arguments.empty() && parsed.error.empty()) {
    if (!areOptionsOver && isOption(arguments.front()) && arguments.front() != "--") {
      parsed.error = takeOption(options, given, arguments);
      continue;
    }
    if (areOptionsOver || arguments.front() != "--")
      options.infinitives.push_back(arguments.front());
    else
      areOptionsOver = true;
    arguments = arguments.subspan(1);
  }
  if (parsed.error.empty() && options.query != nullptr && !options.infinitives.empty())
    parsed.error = "nadmiarowy argument " + quoted(options.infinitives.front()) + ".";
  if (parsed.error.empty()) parsed.error = faultOfChoice(given);
  if (parsed.error.empty()) parsed.error = faultOfFormat(options);
  if (parsed.error.empty()) parsed.error = faultOfSlots(options);
  return parsed;
}

std::span<const OptionRow> optionRows() { return kOptions; }

}  // namespace odmiennik::cli
