// The command line as a table of options.
#include "cli/options.h"

#include <utility>

#include "cli/page.h"
#include "engine/flags.h"

namespace odmiennik::cli {
namespace {

// Takes the value into the options; false for a value that the option does not know.
using Apply = bool (*)(Options&, std::string_view);

struct OptionRow {
  std::string_view name;
  std::string_view valueName;  // empty for an option without a value
  Apply apply;
  std::string_view help;
};

bool takeFormat(Options& options, std::string_view value) {
  constexpr std::string_view kNames[] = {"text", "tsv", "json"};
  for (int i = 0; i < 3; ++i) {
    if (value != kNames[i]) continue;
    options.format = static_cast<OutputFormat>(i);
    return true;
  }
  return false;
}

bool takeAuxiliary(Options& options, std::string_view value) {
  if (value == "avoir")
    options.auxiliary = engine::kAvoir;
  else if (value == "etre" || value == "être")
    options.auxiliary = engine::kEtre;
  else
    return false;
  return true;
}

bool takeFolder(Options& options, std::string_view value) {
  options.folder = value;
  return !value.empty();
}

template <Task Wanted>
bool takeTask(Options& options, std::string_view value) {
  options.task = Wanted;
  options.taskText = value;
  return true;
}

bool takeLetter(Options& options, std::string_view value) {
  const bool isLetter = value.size() == 1 && ((value[0] >= 'a' && value[0] <= 'z') ||
                                              (value[0] >= 'A' && value[0] <= 'Z'));
  return isLetter && takeTask<Task::list>(options, value);
}

bool takeEditing(Options& options, std::string_view) { return options.isEditing = true; }
bool takeNorm(Options& options, std::string_view) { return options.isInNorm = true; }
bool takeDepartures(Options& options, std::string_view) { return options.listsDepartures = true; }

constexpr OptionRow kOptions[] = {
    {"--format", "text|tsv|json", takeFormat, "postać wyniku (domyślnie text)"},
    {"--folder", "KATALOG", takeFolder, "katalog programu z czasownikami użytkownika"},
    {"--auxiliary", "avoir|etre", takeAuxiliary,
     "przełącz potem czasownik posiłkowy czasów złożonych"},
    {"--edit", "", takeEditing, "odmień jak przy edycji czasownika"},
    {"--norm", "", takeNorm, "odmień według dzisiejszej normy"},
    {"--departures", "", takeDepartures, "wypisz formy odbiegające od normy (lub całego spisu)"},
    {"--list", "LITERA", takeLetter, "wypisz czasowniki spisu na tę literę (a-z)"},
    {"--complete", "POCZĄTEK", takeTask<Task::complete>, "dokończ bezokolicznik według spisu"},
    {"--record", "BEZOKOLICZNIK", takeTask<Task::record>, "wypisz dane czasownika ze spisu"},
    {"--strings", "", takeTask<Task::strings>, "wypisz ponumerowane teksty programu"},
    {"--help", "", takeTask<Task::help>, "wyświetl tę pomoc"},
    {"--version", "", takeTask<Task::version>, "wyświetl wersję programu"},
};

const OptionRow* rowOf(std::string_view name) {
  for (const OptionRow& row : kOptions)
    if (row.name == name) return &row;
  return nullptr;
}

std::string quoted(std::string_view text) { return "„" + std::string(text) + "”"; }

// Reads the option that `rest` begins with and takes it off; an error sentence or nothing.
std::string takeOption(Options& options, std::span<const std::string>& rest) {
  const std::string_view argument = rest.front();
  rest = rest.subspan(1);
  const auto equals = argument.find('=');
  const std::string_view name = argument.substr(0, equals);
  const OptionRow* row = rowOf(name);
  if (row == nullptr) return "nieznana opcja " + quoted(name) + ".";
  std::string_view value;
  if (equals != std::string_view::npos) {
    if (row->valueName.empty()) return "opcja " + quoted(name) + " nie przyjmuje wartości.";
    value = argument.substr(equals + 1);
  } else if (!row->valueName.empty()) {
    if (rest.empty()) return "opcja " + quoted(name) + " wymaga wartości.";
    value = rest.front();
    rest = rest.subspan(1);
  }
  const Task before = options.task;
  if (!row->apply(options, value))
    return "niewłaściwa wartość " + quoted(value) + " opcji " + quoted(name) + ".";
  if (before != Task::conjugation && options.task != before)
    return "opcja " + quoted(name) + " nie łączy się z poprzednimi.";
  return {};
}

// The options of a conjugation that cannot be had together.
std::string faultOfChoice(const Options& options) {
  const std::pair<bool, std::string_view> kinds[] = {{options.isEditing, "--edit"},
                                                     {options.isInNorm, "--norm"},
                                                     {options.listsDepartures, "--departures"}};
  std::string_view before;
  for (const auto& [isGiven, name] : kinds) {
    if (isGiven && !before.empty())
      return "opcja " + quoted(name) + " nie łączy się z " + quoted(before) + ".";
    if (isGiven) before = name;
  }
  const bool isShaped = options.format != OutputFormat::text || options.auxiliary;
  if (options.listsDepartures && isShaped)
    return "opcja " + quoted(before) + " nie łączy się z „--format” ani „--auxiliary”.";
  return {};
}

bool isOption(std::string_view argument) { return argument.size() > 1 && argument[0] == '-'; }

}  // namespace

ParsedOptions parseOptions(std::span<const std::string> arguments) {
  ParsedOptions parsed;
  Options& options = parsed.options;
  bool areOptionsOver = false;
  while (!arguments.empty() && parsed.error.empty()) {
    if (!areOptionsOver && isOption(arguments.front()) && arguments.front() != "--") {
      parsed.error = takeOption(options, arguments);
      continue;
    }
    if (areOptionsOver || arguments.front() != "--")
      options.infinitives.push_back(arguments.front());
    else
      areOptionsOver = true;
    arguments = arguments.subspan(1);
  }
  if (parsed.error.empty() && options.task != Task::conjugation && !options.infinitives.empty())
    parsed.error = "nadmiarowy argument " + quoted(options.infinitives.front()) + ".";
  if (parsed.error.empty()) parsed.error = faultOfChoice(options);
  return parsed;
}

std::string helpText() {
  std::string text =
      "Użycie: odmien [OPCJE] [BEZOKOLICZNIK…]\n"
      "Odmienia francuskie czasowniki. Bez argumentów czyta je ze standardowego\n"
      "wejścia, po jednym w wierszu; po znaku tabulacji może stać rekord danych\n"
      "o czasowniku, który zastępuje dane ze spisu.\n\n";
  Page page(text, false);
  for (const OptionRow& row : kOptions) {
    page.moveTo(2);
    page.addUtf8(row.name);
    if (!row.valueName.empty()) page.addUtf8(" ");
    page.addUtf8(row.valueName);
    page.moveTo(26);
    page.addUtf8(row.help);
    page.endLine();
  }
  text.append(
      "\nKod zakończenia: 0 odmieniono wszystko, 1 nie odmieniono któregoś czasownika,\n"
      "2 błędne użycie, 3 kłopot z plikiem.\n");
  return text;
}

}  // namespace odmiennik::cli
