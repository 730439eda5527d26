// SPDX-License-Identifier: GPL-3.0-or-later
// compile_data KIND OUTPUT SOURCE…: turns the text sources in data/ into C++ during the build.
#include <cstdio>
#include <exception>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>

#include "tools/compile_data/generators.h"

namespace {

using odmiennik::tools::Paths;
using Generator = std::function<void(const Paths&, std::ostream&)>;

Generator rulesOf(const char* group) {
  return [group](const Paths& sources, std::ostream& out) {
    odmiennik::tools::generateRules(group, sources, out);
  };
}

const std::map<std::string, Generator> kGenerators{
    {"tenses", odmiennik::tools::generateTenses},
    {"tense-help", odmiennik::tools::generateTenseHelp},
    {"strings", odmiennik::tools::generateStrings},
    {"verb-index", odmiennik::tools::generateVerbIndex},
    {"first-group", rulesOf("FirstGroup")},
    {"other-groups", rulesOf("OtherGroups")},
    {"norm-texts", odmiennik::tools::generateNormTexts},
    {"norm-models", odmiennik::tools::generateNormModels},
    {"messages", odmiennik::tools::generateMessages},
    {"explanations", odmiennik::tools::generateExplanations},
    {"hints", odmiennik::tools::generateHints},
    {"window", odmiennik::tools::generateWindow},
};

void writeOutput(const std::string& kind, const std::string& output, const Paths& sources) {
  std::ostringstream text;
  kGenerators.at(kind)(sources, text);
  std::ofstream file(output, std::ios::binary);
  file << text.str();
  if (!file.flush()) throw std::runtime_error(output + ": cannot be written");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4 || !kGenerators.contains(argv[1])) {
    std::fputs("usage: compile_data KIND OUTPUT SOURCE...\n", stderr);
    return 2;
  }
  try {
    writeOutput(argv[1], argv[2], Paths(argv + 3, argv + argc));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
  return 0;
}
