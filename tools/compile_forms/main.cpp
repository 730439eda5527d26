// SPDX-License-Identifier: GPL-3.0-or-later
// compile_forms OUTPUT FREQUENT: asks the engine for the forms of every verb of the index and
// writes them as the tables of finder/form_index_data.h. FREQUENT lists the verbs that come first.
#include <cstdio>
#include <exception>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "tools/compile_forms/form_tables.h"
#include "tools/compile_forms/frequent_verbs.h"
#include "tools/compile_forms/paradigms.h"

namespace {

void writeOutput(const std::string& output, const std::string& frequent) {
  namespace tools = odmiennik::tools;
  std::ostringstream text;
  tools::writeFormTables(text, tools::paradigmsOfIndex(), tools::ranksOfVerbs(frequent));
  std::ofstream file(output, std::ios::binary);
  file << text.str();
  if (!file.flush()) throw std::runtime_error(output + ": cannot be written");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: compile_forms OUTPUT FREQUENT\n", stderr);
    return 2;
  }
  try {
    writeOutput(argv[1], argv[2]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
  return 0;
}
