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

using Cells = std::vector<Utf8Text>;

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
constexpr Utf8View kBoxArray = "txtCzasownik";
constexpr Utf8View kTenseArray = "lblCzas";

int number(const LineReader& line, Utf8View text, int least, int most) {
  LineReader cell = line.at(text);
  const int value = cell.takeNumber(least, most);
  cell.finish();
  return value;
}

// "8.25 bold" -> "825, true": hundredths of a point, so that the table holds whole numbers only.
std::string fontCells(const LineReader& line, Utf8View text) {
  if (text.empty()) return "0, false";
  LineReader cell = line.at(text);
  const Utf8Text size(cell.takeWord("a number is expected"));
  const bool isBold = cell.take("bold");
  cell.finish();
  const auto point = size.find('.');
  Utf8Text decimals = point == Utf8Text::npos ? "" : size.substr(point + 1);
  if (decimals.size() > 2) line.fail(inQuotes(size) + " has more than two decimals");
  decimals.resize(2, '0');
  const int hundredths = number(line, size.substr(0, point) + decimals, 1, kLargest);
  return std::to_string(hundredths) + (isBold ? ", true" : ", false");
}

// "txtCzasownik_96" -> "\"txtCzasownik\", 96"; a name without a number is no element of an array.
std::string nameCells(const LineReader& line, Utf8View text) {
  const auto bar = text.rfind('_');
  if (bar == Utf8View::npos) return literal(text) + ", -1";
  const int index = number(line, text.substr(bar + 1), 0, kLargest);
  return literal(text.substr(0, bar)) + ", " + std::to_string(index);
}

// A row of the table; boxes have an accessible name beside what the source says.
std::string rowOf(const LineReader& line, const Cells& cells, Utf8View spokenName = {}) {
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

Utf8Text arrayOf(const Utf8Text& control) { return control.substr(0, control.rfind('_')); }

std::string rowOfHeading(const LineReader& line, Cells cells, const Utf8Text& control,
                         const Utf8Text& text, const Utf8Text& moving) {
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
  line.fail("no mood is called " + inQuotes(cells[name]));
}

// A heading that opens a page has it as its tag.
std::string rowOfTense(const LineReader& line, const Cells& cells, const SourceTense& tense) {
  return rowOfHeading(line, cells, tense.heading, tense.caption,
                      tense.isHeadingLink ? tense.page : Utf8Text(kTenseArray));
}

// "Subjonctif plus-que-parfait, nous"
Utf8Text spokenNameOf(const SourceTense& tense, int form) {
  constexpr Utf8View kSix[] = {"je", "tu", "il", "nous", "vous", "ils"};
  constexpr Utf8View kThree[] = {"tu", "nous", "vous"};
  const Utf8Text whole = tense.mood.name + " " + tense.name;
  if (tense.formCount == 1) return whole;
  return whole + ", " + Utf8Text(tense.formCount == 6 ? kSix[form] : kThree[form]);
}

std::string rowsOfForms(const LineReader& line, Cells cells, const SourceTense& tense) {
  const int firstTop = number(line, cells[top], 0, kLargest);
  const int firstTab = number(line, cells[tab], 0, kLargest);
  cells[kind] = "box";
  cells[tag] = kBoxArray;
  std::string rows;
  for (int form = 0; form < tense.formCount; ++form) {
    cells[name] = Utf8Text(kBoxArray) + "_" + decimal(tense.firstSlot + form);
    cells[top] = decimal(firstTop + form * kTwipsFromBoxToBox);
    cells[tab] = decimal(firstTab + form);
    rows += rowOf(line, cells, spokenNameOf(tense, form));
  }
  return rows;
}

const SourceTense& tenseNamed(const LineReader& line, const Utf8Text& name,
                              const TenseTable& tenses) {
  for (const SourceTense& tense : tenses.rows())
    if (tense.sourceName() == name) return tense;
  line.fail("no tense has the name " + inQuotes(name));
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
