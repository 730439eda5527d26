// SPDX-License-Identifier: GPL-3.0-or-later
// A word of a source is UTF-8, and a rule's text French.
#include "tools/compile_data/emit.h"
#include "tools/compile_data/line_reader.h"

using namespace odmiennik;

std::string rule(tools::LineReader& line) { return tools::viewLiteral(line.takeWord("")); }
