// SPDX-License-Identifier: GPL-3.0-or-later
// Fuzz target: any bytes as a source of the program's data; each is compiled, or refused with its
// file, a line and a reason.
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

#include "tests/fuzz/fuzz_input.h"
#include "tools/compile_data/generators.h"
#include "tools/compile_data/source_file.h"

namespace odmiennik::testing {
namespace {

namespace fs = std::filesystem;
using tools::Paths;

const std::string kData = ODMIENNIK_SOURCE_DIR "/data/";
const std::string kTenses = kData + "tenses.txt";

// The source under test; in memory where the system has such a folder.
const std::string& sourceName() {
  static const std::string name =
      (fs::exists("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path()) /
      ("odmiennik-fuzz-" + std::to_string(::getpid()) + ".txt");
  return name;
}

using Compile = void (*)(const std::string& source, std::ostream& out);

// The same kinds and companions as the tests of faulty sources have; the first line of a source
// tells its kind: "# models …".
struct Kind {
  std::string_view name;
  Compile compile;
};
constexpr Kind kKinds[] = {
    {"tenses",
     [](const std::string& source, std::ostream& out) {
       tools::generateTenses({source}, out);
       tools::generateTenseHelp({source}, out);
     }},
    {"models",
     [](const std::string& source, std::ostream& out) {
       tools::generateRules("OtherGroups",
                            {kTenses, kData + "rules/third_group_dispatch.txt", source}, out);
     }},
    {"dispatch",
     [](const std::string& source, std::ostream& out) {
       tools::generateRules("OtherGroups",
                            {kTenses, source, kData + "rules/third_group_models.txt"}, out);
     }},
    {"first_dispatch",
     [](const std::string& source, std::ostream& out) {
       tools::generateRules("FirstGroup", {kTenses, source, kData + "rules/first_group_models.txt"},
                            out);
     }},
    {"strings",
     [](const std::string& source, std::ostream& out) {
       tools::generateStrings({kTenses, source, kData + "tips.txt", kData + "builtin_verbs.txt"},
                              out);
     }},
    {"tips",
     [](const std::string& source, std::ostream& out) {
       tools::generateStrings({kTenses, kData + "strings.txt", source, kData + "builtin_verbs.txt"},
                              out);
     }},
    {"builtin",
     [](const std::string& source, std::ostream& out) {
       tools::generateStrings({kTenses, kData + "strings.txt", kData + "tips.txt", source}, out);
     }},
    {"index",
     [](const std::string& source, std::ostream& out) { tools::generateVerbIndex({source}, out); }},
    {"norm_strings",
     [](const std::string& source, std::ostream& out) {
       tools::generateNormTexts({source, kData + "norm/lists.txt"}, out);
     }},
    {"norm_lists",
     [](const std::string& source, std::ostream& out) {
       tools::generateNormTexts({kData + "norm/strings.txt", source}, out);
     }},
    {"norm_verbs",
     [](const std::string& source, std::ostream& out) {
       tools::generateNormModels({kTenses, kData + "norm/models.txt", source}, out);
     }},
    {"hints",
     [](const std::string& source, std::ostream& out) { tools::generateHints({source}, out); }},
    {"messages",
     [](const std::string& source, std::ostream& out) { tools::generateMessages({source}, out); }},
    {"window",
     [](const std::string& source, std::ostream& out) {
       tools::generateWindow({kTenses, source}, out);
     }},
};

std::string_view kindOf(std::string_view source) {
  if (!source.starts_with("# ")) return {};
  return source.substr(2, source.find_first_of(" \r\n", 2) - 2);
}

// "file:line: reason", the form that editors jump to.
bool namesItsPlace(std::string_view fault) {
  const auto colon = fault.find(".txt:");
  if (colon == std::string_view::npos) return false;
  fault.remove_prefix(colon + 5);
  const auto digits = fault.find_first_not_of("0123456789");
  return digits != 0 && digits != std::string_view::npos &&
         fault.substr(digits).starts_with(": ") && fault.size() > digits + 2;
}

void compileTwice(const Kind& kind) {
  std::ostringstream first, second;
  try {
    kind.compile(sourceName(), first);
  } catch (const tools::SourceError& fault) {
    require(namesItsPlace(fault.what()), "a fault names file, line and reason");
    return;
  }
  kind.compile(sourceName(), second);
  require(!first.str().empty() && first.str() == second.str(), "a source gives one table");
}

struct RemovedAtEnd {
  ~RemovedAtEnd() { std::remove(sourceName().c_str()); }
};

}  // namespace
}  // namespace odmiennik::testing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace odmiennik::testing;
  static const RemovedAtEnd removedAtEnd;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  std::ofstream(sourceName(), std::ios::binary) << bytes;
  for (const Kind& kind : kKinds)
    if (kind.name == kindOf(bytes)) compileTwice(kind);
  return 0;
}
