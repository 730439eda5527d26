// SPDX-License-Identifier: GPL-3.0-or-later
// The list of frequent verbs.
#include "tools/compile_forms/frequent_verbs.h"

#include <map>

#include "dictionary/verb_index.h"
#include "finder/reading.h"
#include "tools/compile_data/source_file.h"

namespace odmiennik::tools {

std::vector<std::uint32_t> ranksOfVerbs(const std::string& path) {
  std::map<std::string_view, std::size_t> positions;
  for (int verb = 0; verb < dictionary::verbCount(); ++verb)
    positions[dictionary::verbAt(verb)] = static_cast<std::size_t>(verb);
  std::vector<std::uint32_t> ranks(positions.size(), finder::kUnranked);
  const SourceFile file = readSource(path);
  std::uint32_t rank = 0;
  for (const SourceLine& line : file.lines)
    for (const Utf8Text& name : split(line.text, ' ')) {
      const auto verb = positions.find(french(file, line, name));
      if (verb == positions.end()) file.fail(line, inQuotes(name) + " is no verb of the index");
      std::uint32_t& rankOfVerb = ranks[verb->second];
      if (rankOfVerb != finder::kUnranked) file.fail(line, inQuotes(name) + " stands twice");
      rankOfVerb = rank++;
    }
  return ranks;
}

}  // namespace odmiennik::tools
