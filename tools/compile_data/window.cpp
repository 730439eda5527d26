// SPDX-License-Identifier: GPL-3.0-or-later
// The design of a window: a table of controls.
#include <array>
#include <sstream>

#include "tools/compile_data/emit.h"
#include "tools/compile_data/generators.h"
#include "tools/compile_data/line_reader.h"
#include "tools/compile_data/tenses.h"

namespace odmiennik::tools {
namespace {

// The columns of the source, in order.
enum Column { kind, name, caption, left, top, width, height, font, state, tag, tab };
constexpr std::size_t kColumnCount = 11;

using Cells = std::vector<std::string>;

using Word = Named<std::string_view>;
constexpr std::array<Word, 9> kKinds{{{"window", "window"},
                                      {"label", "label"},
                                      {"box", "textBox"},
                                      {"button", "button"},
                                      {"check", "checkBox"},
                                      {"frame", "frame"},
                                      {"panel", "panel"},
                                      {"shape", "shape"},
                                      {"line", "line"}}};
constexpr std::array<Word, 4> kStates{
    {{"normal", "normal"}, {"locked", "locked"}, {"disabled", "disabled"}, {"hidden", "hidden"}}};

constexpr int kLargest = 100000;  // twips: more than any screen
constexpr int kTwipsFromBoxToBox = 315;
constexpr std::string_view kBoxArray = "txtCzasownik";
constexpr std::string_view kTenseArray = "lblCzas";

int number(const LineReader& line, std::string_view text, int least, int most) {
  LineReader cell = line.at(text);
  const int value = cell.takeNumber(least, most);
  cell.finish();
  return value;
}

// "8.25 bold" -> "825, true": hundredths of a point, so that the table holds whole numbers only.
std::string fontCells(const LineReader& line, std::string_view text) {
  if (text.empty()) return "0, false";
  LineReader cell = line.at(text);
  const std::string size(cell.takeWord("a number is expected"));
  const bool isBold = cell.take("bold");
  cell.finish();
  const auto point = size.find('.');
  std::string decimals = point == std::string::npos ? "" : size.substr(point + 1);
  if (decimals.size() > 2) line.fail("\"" + size + "\" has more than two decimals");
  decimals.resize(2, '0');
  const int hundredths = number(line, size.substr(0, point) + decimals, 1, kLargest);
  return std::to_string(hundredths) + (isBold ? ", true" : ", false");
}

// "txtCzasownik_96" -> "\"txtCzasownik\", 96"; a name without a number is no element of an array.
std::string nameCells(const LineReader& line, const std::string& text) {
  const auto bar = text.rfind('_');
  if (bar == std::string::npos) return literal(text) + ", -1";
  const int index = number(line, std::string_view(text).substr(bar + 1), 0, kLargest);
  return literal(text.substr(0, bar)) + ", " + std::to_string(index);
}

// A row of the table; boxes have an accessible name beside what the source says.
std::string rowOf(const LineReader& line, const Cells& cells, const std::string& spokenName = {}) {
  std::ostringstream row;
  row << "    {ControlKind::" << line.at(cells[kind]).takeNamed(kKinds) << ", "
      << nameCells(line, cells[name]) << ", " << literal(cells[caption]);
  for (const Column column : {left, top, width, height})
    row << ", " << number(line, cells[column], 0, kLargest);
  row << ", " << fontCells(line, cells[font]) << ", ControlState::"
      << line.at(cells[state].empty() ? "normal" : cells[state]).takeNamed(kStates) << ", "
      << literal(cells[tag]) << ", "
      << (cells[tab].empty() ? -1 : number(line, cells[tab], 0, kLargest)) << ", "
      << literal(spokenName) << "},\n";
  return row.str();
}

std::string arrayOf(const std::string& control) { return control.substr(0, control.rfind('_')); }

std::string rowOfHeading(const LineReader& line, Cells cells, const std::string& control,
                         const std::string& text, const std::string& moving) {
  cells[kind] = "label";
  cells[name] = control;
  cells[caption] = text;
  cells[tag] = moving;
  return rowOf(line, cells);
}

std::string rowOfMood(const LineReader& line, const Cells& cells, const TenseTable& tenses) {
  for (const SourceTense& tense : tenses.rows())
    if (const SourceMood& mood = tense.mood; mood.name == cells[name])
      return rowOfHeading(line, cells, mood.control, mood.caption, arrayOf(mood.control));
  line.fail("no mood is called \"" + cells[name] + "\"");
}

// A heading that opens a page has it as its tag.
std::string rowOfTense(const LineReader& line, const Cells& cells, const SourceTense& tense) {
  return rowOfHeading(line, cells, tense.heading, tense.caption,
                      tense.isHeadingLink ? tense.page : std::string(kTenseArray));
}

// "Subjonctif plus-que-parfait, nous"
std::string spokenNameOf(const SourceTense& tense, int form) {
  constexpr std::string_view kSix[] = {"je", "tu", "il", "nous", "vous", "ils"};
  constexpr std::string_view kThree[] = {"tu", "nous", "vous"};
  const std::string whole = tense.mood.name + " " + tense.name;
  if (tense.formCount == 1) return whole;
  return whole + ", " + std::string(tense.formCount == 6 ? kSix[form] : kThree[form]);
}

std::string rowsOfForms(const LineReader& line, Cells cells, const SourceTense& tense) {
  const int firstTop = number(line, cells[top], 0, kLargest);
  const int firstTab = number(line, cells[tab], 0, kLargest);
  cells[kind] = "box";
  cells[tag] = kBoxArray;
  std::string rows;
  for (int form = 0; form < tense.formCount; ++form) {
    cells[name] = std::string(kBoxArray) + "_" + std::to_string(tense.firstSlot + form);
    cells[top] = std::to_string(firstTop + form * kTwipsFromBoxToBox);
    cells[tab] = std::to_string(firstTab + form);
    rows += rowOf(line, cells, spokenNameOf(tense, form));
  }
  return rows;
}

const SourceTense& tenseNamed(const LineReader& line, const std::string& name,
                              const TenseTable& tenses) {
  for (const SourceTense& tense : tenses.rows())
    if (tense.sourceName() == name) return tense;
  line.fail("no tense has the name \"" + name + "\"");
}

std::string rowsOf(const LineReader& line, const Cells& cells, const TenseTable& tenses) {
  if (cells[kind] == "mood") return rowOfMood(line, cells, tenses);
  if (cells[kind] == "tense") return rowOfTense(line, cells, tenseNamed(line, cells[name], tenses));
  if (cells[kind] == "forms")
    return rowsOfForms(line, cells, tenseNamed(line, cells[name], tenses));
  return rowOf(line, cells);
}

}  // namespace

void generateWindow(const Paths& sources, std::ostream& out) {
  const TenseTable tenses(sources.at(0));
  const SourceFile file = readSource(sources.at(1));
  out << "#pragma once\n#include \"app/controls/control_row.h\"\nnamespace odmiennik::app {\n"
      << "inline constexpr ControlRow kMainWindow[] = {\n";
  Once names;
  for (const SourceLine& source : file.lines) {
    const LineReader line(file, source);
    Cells cells = split(source.text, '|');
    if (cells.size() > kColumnCount) line.fail("too many columns");
    // The empty cells at a line's end need no bars.
    cells.resize(kColumnCount);
    names.note(line, cells[kind] == "forms" ? "forms " + cells[name] : cells[name]);
    out << rowsOf(line, cells, tenses);
  }
  out << "};\n}\n";
}

}  // namespace odmiennik::tools
