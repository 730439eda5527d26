// SPDX-License-Identifier: GPL-3.0-or-later
// The words of explanations: enumerations and two tables.
#include <sstream>

#include "tools/compile_data/emit.h"
#include "tools/compile_data/generators.h"
#include "tools/compile_data/line_reader.h"

namespace odmiennik::tools {
namespace {

constexpr std::array<Named<bool>, 2> kBehindStem{{{"endings", true}, {"rest", false}}};

// "part NAME" and, below it, "name | text".
void writePhrases(const SourceFile& file, std::ostream& out) {
  std::ostringstream parts, names, texts;
  std::string part;
  Once once;
  for (const SourceLine& source : file.lines) {
    LineReader line(file, source);
    if (line.take("part")) {
      part = line.takeIdentifier();
      line.finish();
      once.note(line, asUtf8("part " + part));
      parts << "  " << part << ",\n";
      continue;
    }
    if (part.empty()) line.fail("a part is expected");
    LineReader first = line.takePart('|');
    const std::string name = first.takeIdentifier();
    first.finish();
    once.note(line, asUtf8(name));
    names << "  " << name << ",\n";
    texts << "    {PhrasePart::" << part << ", " << literal(line.takeRest("a text is expected"))
          << "},\n";
  }
  out << "enum class PhrasePart : std::uint8_t {\n"
      << parts.str() << "};\nenum class PhraseId : std::uint8_t {\n"
      << names.str() << "};\ninline constexpr PhraseRow kPhrases[] = {\n"
      << texts.str() << "};\n";
}

// "model | verb | name of the rule | endings"
void writeModelVerbs(const SourceFile& file, std::ostream& out) {
  Once once;
  out << "inline constexpr ModelVerb kModelVerbs[] = {\n";
  for (const SourceLine& source : file.lines) {
    LineReader line(file, source);
    out << "    {";
    for (int column = 0; column < 3; ++column) {
      const Utf8View text = line.takePart('|').takeRest("a text is expected");
      if (column == 0) once.note(line, text);
      out << literal(text) << ", ";
    }
    out << (line.takeNamed(kBehindStem) ? "true" : "false") << "},\n";
    line.finish();
  }
  out << "};\n";
}

}  // namespace

void generateExplanations(const Paths& sources, std::ostream& out) {
  out << "#pragma once\n#include \"explainer/phrase_rows.h\"\nnamespace odmiennik::explainer {\n";
  writePhrases(readSource(sources.at(0)), out);
  writeModelVerbs(readSource(sources.at(1)), out);
  out << "}\n";
}

}  // namespace odmiennik::tools
