// SPDX-License-Identifier: GPL-3.0-or-later
// The tenses as tables: for the engine, and for the window's headings and help.
#include <map>

#include "tools/compile_data/emit.h"
#include "tools/compile_data/generators.h"
#include "tools/compile_data/tenses.h"

namespace odmiennik::tools {
namespace {

// `namespace NAME { inline constexpr int kPresent = 0; … }`
template <typename NumberOf>
void writeConstants(std::ostream& out, std::string_view name, const TenseTable& tenses,
                    NumberOf numberOf) {
  out << "namespace " << name << " {\n";
  int position = 0;
  for (const SourceTense& tense : tenses.rows())
    out << "inline constexpr int k" << tense.constant << " = " << numberOf(tense, position++)
        << ";\n";
  out << "}\n";
}

// Headings with a number, in its order: lblCzas_0, lblCzas_1 …
std::vector<const SourceTense*> numberedHeadings(const TenseTable& tenses) {
  std::map<int, const SourceTense*> headings;
  for (const SourceTense& tense : tenses.rows())
    if (const auto bar = tense.heading.rfind('_'); bar != Utf8Text::npos)
      headings[std::stoi(std::string(bytesOf(tense.heading).substr(bar + 1)))] = &tense;
  std::vector<const SourceTense*> inOrder;
  for (const auto& [number, tense] : headings) inOrder.push_back(tense);
  return inOrder;
}

}  // namespace

void generateTenses(const Paths& sources, std::ostream& out) {
  const TenseTable tenses(sources.at(0));
  out << "#pragma once\n#include <array>\n#include \"engine/tense.h\"\nnamespace odmiennik::engine "
         "{\n"
      << "inline constexpr int kSlotCount = " << tenses.slotCount() << ";\n";
  writeConstants(out, "slot", tenses,
                 [](const SourceTense& tense, int) { return tense.firstSlot; });
  writeConstants(out, "tense", tenses, [](const SourceTense&, int position) { return position; });
  out << "inline constexpr std::array<Tense, " << tenses.rows().size() << "> kTenses{{\n";
  for (const SourceTense& tense : tenses.rows())
    out << "    {" << tense.firstSlot << ", " << tense.formCount << ", " << literal(tense.mood.name)
        << ", " << literal(tense.name) << "},\n";
  out << "}};\n}\n";
}

void generateTenseHelp(const Paths& sources, std::ostream& out) {
  const TenseTable tenses(sources.at(0));
  const std::vector<const SourceTense*> headings = numberedHeadings(tenses);
  out << "#pragma once\n#include <array>\n#include \"engine/utf8.h\"\n"
      << "namespace odmiennik::app {\n"
      << "// A heading lblCzas: the page that it opens, if any, and the first slot below it.\n"
      << "struct TenseHeading {\n  Utf8View page;\n  int firstSlot;\n};\n"
      << "inline constexpr std::array<TenseHeading, " << headings.size() << "> kTenseTopics{{\n";
  for (const SourceTense* tense : headings)
    out << "    {" << literal(tense->isHeadingLink ? tense->page : Utf8Text()) << ", "
        << tense->firstSlot << "},\n";
  out << "}};\n// By tense: the page that F1 opens in its boxes.\ninline constexpr "
         "Utf8View kTensePages[] = {\n";
  for (const SourceTense& tense : tenses.rows()) out << "    " << literal(tense.page) << ",\n";
  out << "};\n}\n";
}

}  // namespace odmiennik::tools
