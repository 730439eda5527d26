// SPDX-License-Identifier: GPL-3.0-or-later
// Today's norm where it departs from the program's own forms: what is written over them, and lists.
#include <algorithm>
#include <map>

#include "tools/compile_data/emit.h"
#include "tools/compile_data/generators.h"
#include "tools/compile_data/line_reader.h"
#include "tools/compile_data/rule_source.h"

namespace odmiennik::tools {
namespace {

constexpr int kLastIdentifier = 99999;

// `2041 "auraient"`: texts of consecutive identifiers, as in the string table's source.
void writeTexts(std::ostream& out, const std::string& path) {
  const SourceFile file = readSource(path);
  std::map<int, std::string> texts;
  for (const SourceLine& source : file.lines) {
    LineReader line(file, source);
    int identifier = line.takeNumber(0, kLastIdentifier);
    do {
      if (!texts.emplace(identifier, line.french(line.takeQuoted())).second)
        line.fail("identifier " + decimal(identifier) + " stands twice");
      ++identifier;
    } while (!line.isAtEnd());
  }
  out << "constexpr NormText kNormTextRows[] = {\n";
  for (const auto& [identifier, text] : texts)
    out << "    {" << identifier << ", " << viewLiteral(text) << "},\n";
  out << "};\nconst std::span<const NormText> kNormTexts = kNormTextRows;\n";
}

enum class List { etre, invariable, impersonal, thirdPerson, unelided, participle };
constexpr std::array<Named<List>, 6> kLists{{{"être", List::etre},
                                             {"invariable", List::invariable},
                                             {"impersonal", List::impersonal},
                                             {"third-person", List::thirdPerson},
                                             {"unelided", List::unelided},
                                             {"participle", List::participle}}};
constexpr const char* kListNames[] = {"kUsualEtre", "kInvariable", "kImpersonalReflexives",
                                      "kThirdPersonOnly", "kUnelided"};

// The lists of one file as they are read.
struct Lists {
  std::vector<std::string> verbs[std::size(kListNames)];
  std::string participles;  // rows of C++
};

void readVerbs(LineReader& line, std::vector<std::string>& verbs) {
  while (!line.isAtEnd()) {
    LineReader verb = line.takePart(',');
    const std::string text = line.french(verb.takeRest("a verb is expected"));
    if (std::ranges::find(verbs, text) != verbs.end()) line.fail("a verb stands twice");
    verbs.push_back(text);
  }
}

void readParticiple(LineReader& line, std::string& rows) {
  rows += "    {";
  for (int form = 0; form < 4; ++form)
    rows += viewLiteral(line.french(line.takePart('|').takeRest("four forms are expected"))) + ", ";
  rows += "},\n";
  line.finish();
}

void readLine(LineReader line, Lists& lists) {
  LineReader name = line.takePart(':');
  const List list = name.takeNamed(kLists);
  name.finish();
  if (list == List::participle) return readParticiple(line, lists.participles);
  readVerbs(line, lists.verbs[static_cast<std::size_t>(list)]);
}

void writeLists(std::ostream& out, const std::string& path) {
  const SourceFile file = readSource(path);
  Lists lists;
  for (const SourceLine& source : file.lines) readLine(LineReader(file, source), lists);
  for (std::size_t i = 0; i < std::size(lists.verbs); ++i) {
    if (lists.verbs[i].empty()) file.fail(file.lines.back(), "a list is missing");
    out << "constexpr std::string_view " << kListNames[i] << "Rows[] = {";
    for (const std::string& verb : lists.verbs[i]) out << viewLiteral(verb) << ", ";
    out << "};\nconst std::span<const std::string_view> " << kListNames[i] << " = " << kListNames[i]
        << "Rows;\n";
  }
  out << "constexpr NormParticiple kNormParticipleRows[] = {\n"
      << lists.participles
      << "};\nconst std::span<const NormParticiple> kNormParticiples = kNormParticipleRows;\n";
}

enum class Claimed { ending, verb };
constexpr std::array<Named<Claimed>, 2> kClaimed{
    {{"ending", Claimed::ending}, {"verb", Claimed::verb}}};

std::size_t positionOf(LineReader& line, const std::vector<SourceModel>& models) {
  const Utf8View name = line.takeRest("a model is expected");
  const auto found = std::ranges::find(models, name, &SourceModel::name);
  if (found == models.end()) line.fail("no model is called " + inQuotes(name));
  return static_cast<std::size_t>(found - models.begin());
}

}  // namespace

void generateNormTexts(const Paths& sources, std::ostream& out) {
  out << "#include \"engine/norm_data.h\"\nnamespace odmiennik::engine::data {\n";
  writeTexts(out, sources.at(0));
  writeLists(out, sources.at(1));
  out << "}\n";
}

void generateNormModels(const Paths& sources, std::ostream& out) {
  std::vector<SourceModel> models;
  readModels(sources.at(1), ruleTenses(TenseTable(sources.at(0))), models);
  out << "#pragma once\n#include \"groups/rule_rows.h\"\nnamespace odmiennik::groups::data {\n";
  writeModels(out, "Norm", models);
  out << "inline constexpr NormRow kNormRows[] = {\n";
  const SourceFile file = readSource(sources.at(2));
  Once once;
  for (const SourceLine& source : file.lines) {
    LineReader line(file, source);
    const bool isVerb = line.takeNamed(kClaimed) == Claimed::verb;
    const Utf8View ending = line.takeWord("a verb or its end is expected");
    once.note(line, ending);
    out << "    {" << viewLiteral(line.french(ending)) << ", " << (isVerb ? "true" : "false")
        << ", " << positionOf(line, models) << "},\n";
  }
  out << "};\n}\n";
}

}  // namespace odmiennik::tools
