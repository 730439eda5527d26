// The design of a window: a table of controls.
#include <array>
#include <charconv>
#include <sstream>

#include "tools/compile_data/emit.h"
#include "tools/compile_data/generators.h"
#include "tools/compile_data/source_file.h"

namespace odmiennik::tools {
namespace {

// The columns of the source, in order.
enum Column { kind, name, caption, left, top, width, height, font, state, tag, tab, spokenName };
constexpr std::size_t kColumnCount = 12;

using Cells = std::vector<std::string>;

// A word of the source and the enumerator that it stands for.
struct Word {
  std::string_view source, enumerator;
};
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
    {{"", "normal"}, {"locked", "locked"}, {"disabled", "disabled"}, {"hidden", "hidden"}}};

template <std::size_t Count>
std::string enumeratorOf(const SourceFile& file, const SourceLine& line,
                         const std::array<Word, Count>& known, std::string_view word) {
  for (const Word& row : known)
    if (row.source == word) return std::string(row.enumerator);
  file.fail(line, "\"" + std::string(word) + "\" is not known here");
}

int number(const SourceFile& file, const SourceLine& line, std::string_view text) {
  int value = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (fault != std::errc{} || end != text.data() + text.size())
    file.fail(line, "\"" + std::string(text) + "\" is no whole number");
  return value;
}

// "8.25 bold" -> "825, true": hundredths of a point, so that the table holds whole numbers only.
std::string fontCells(const SourceFile& file, const SourceLine& line, const std::string& text) {
  const std::vector<std::string> parts = words(text);
  if (parts.empty()) return "0, false";
  const bool isBold = parts.size() == 2 && parts[1] == "bold";
  if (parts.size() > 1 && !isBold) file.fail(line, "a font is a size and perhaps \"bold\"");
  const auto point = parts[0].find('.');
  std::string hundredths = parts[0].substr(0, point);
  std::string behind = point == std::string::npos ? "" : parts[0].substr(point + 1);
  behind.resize(2, '0');
  number(file, line, hundredths += behind);
  return hundredths + (isBold ? ", true" : ", false");
}

// "txtCzasownik_96" -> "\"txtCzasownik\", 96"; a name without a number is no element of an array.
std::string nameCells(const SourceFile& file, const SourceLine& line, const std::string& text) {
  const auto bar = text.rfind('_');
  if (bar == std::string::npos) return literal(text) + ", -1";
  const int index = number(file, line, std::string_view(text).substr(bar + 1));
  return literal(text.substr(0, bar)) + ", " + std::to_string(index);
}

std::string rowOf(const SourceFile& file, const SourceLine& line, const Cells& cells) {
  std::ostringstream row;
  row << "    {ControlKind::" << enumeratorOf(file, line, kKinds, cells[kind]) << ", "
      << nameCells(file, line, cells[name]) << ", " << literal(cells[caption]);
  for (const Column column : {left, top, width, height})
    row << ", " << number(file, line, cells[column]);
  row << ", " << fontCells(file, line, cells[font])
      << ", ControlState::" << enumeratorOf(file, line, kStates, cells[state]) << ", "
      << literal(cells[tag]) << ", " << (cells[tab].empty() ? -1 : number(file, line, cells[tab]))
      << ", " << literal(cells[spokenName]) << "},\n";
  return row.str();
}

}  // namespace

void generateWindow(const Paths& sources, std::ostream& out) {
  const SourceFile file = readSource(sources.at(0));
  out << "#pragma once\n#include \"app/controls/control_row.h\"\nnamespace odmiennik::app {\n"
      << "inline constexpr ControlRow kMainWindow[] = {\n";
  for (const SourceLine& line : file.lines) {
    Cells cells = split(line.text, '|');
    if (cells.size() > kColumnCount) file.fail(line, "too many columns");
    // The empty cells at a line's end need no bars.
    cells.resize(kColumnCount);
    out << rowOf(file, line, cells);
  }
  out << "};\n}\n";
}

}  // namespace odmiennik::tools
