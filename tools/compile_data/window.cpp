// The design of a window: a table of controls.
#include <array>
#include <sstream>

#include "tools/compile_data/emit.h"
#include "tools/compile_data/generators.h"
#include "tools/compile_data/line_reader.h"

namespace odmiennik::tools {
namespace {

// The columns of the source, in order.
enum Column { kind, name, caption, left, top, width, height, font, state, tag, tab, spokenName };
constexpr std::size_t kColumnCount = 12;

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

std::string rowOf(const LineReader& line, const Cells& cells) {
  std::ostringstream row;
  row << "    {ControlKind::" << line.at(cells[kind]).takeNamed(kKinds) << ", "
      << nameCells(line, cells[name]) << ", " << literal(cells[caption]);
  for (const Column column : {left, top, width, height})
    row << ", " << number(line, cells[column], 0, kLargest);
  row << ", " << fontCells(line, cells[font]) << ", ControlState::"
      << line.at(cells[state].empty() ? "normal" : cells[state]).takeNamed(kStates) << ", "
      << literal(cells[tag]) << ", "
      << (cells[tab].empty() ? -1 : number(line, cells[tab], 0, kLargest)) << ", "
      << literal(cells[spokenName]) << "},\n";
  return row.str();
}

}  // namespace

void generateWindow(const Paths& sources, std::ostream& out) {
  const SourceFile file = readSource(sources.at(0));
  out << "#pragma once\n#include \"app/controls/control_row.h\"\nnamespace odmiennik::app {\n"
      << "inline constexpr ControlRow kMainWindow[] = {\n";
  Once names;
  for (const SourceLine& source : file.lines) {
    const LineReader line(file, source);
    Cells cells = split(source.text, '|');
    if (cells.size() > kColumnCount) line.fail("too many columns");
    // The empty cells at a line's end need no bars.
    cells.resize(kColumnCount);
    names.note(line, cells[name]);
    out << rowOf(line, cells);
  }
  out << "};\n}\n";
}

}  // namespace odmiennik::tools
