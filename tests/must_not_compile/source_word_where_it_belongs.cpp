// SPDX-License-Identifier: GPL-3.0-or-later
// The control: converted, or kept as what it is, a word of a source is taken.
#include "tools/compile_data/emit.h"
#include "tools/compile_data/line_reader.h"

using namespace odmiennik;

std::string rule(tools::LineReader& line) {
  return tools::viewLiteral(line.french(line.takeWord("")));
}
std::string caption(tools::LineReader& line) { return tools::literal(line.takeWord("")); }
