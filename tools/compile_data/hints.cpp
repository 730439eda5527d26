// SPDX-License-Identifier: GPL-3.0-or-later
// The quiet texts of the window: an enumeration and a table.
#include <sstream>

#include "tools/compile_data/emit.h"
#include "tools/compile_data/generators.h"
#include "tools/compile_data/line_reader.h"

namespace odmiennik::tools {

void generateHints(const Paths& sources, std::ostream& out) {
  const SourceFile file = readSource(sources.at(0));
  std::ostringstream names, texts;
  Once once;
  for (const SourceLine& source : file.lines) {
    LineReader line(file, source);
    LineReader first = line.takePart('|');
    const std::string name = first.takeIdentifier();
    first.finish();
    once.note(line, asUtf8(name));
    names << "  " << name << ",\n";
    texts << "    " << literal(line.takeRest("a text is expected")) << ",\n";
  }
  out << "#pragma once\n#include <cstdint>\n#include \"engine/utf8.h\"\nnamespace odmiennik::app "
         "{\n"
      << "enum class HintId : std::uint8_t {\n"
      << names.str() << "};\n"
      << "inline constexpr Utf8View kHints[] = {\n"
      << texts.str() << "};\n}\n";
}

}  // namespace odmiennik::tools
