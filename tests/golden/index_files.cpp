// SPDX-License-Identifier: GPL-3.0-or-later
// The text of the two golden files of the verb index.
#include <sstream>
#include <stdexcept>

#include "engine/form_table.h"
#include "engine/windows1252.h"
#include "tests/golden/index_snapshot.h"
#include "tests/support/test_program.h"

namespace odmiennik::testing {
namespace {

constexpr std::string_view kPatternsHead =
    "# How the verbs of the index are conjugated, a pattern for all verbs that differ only in "
    "their\n"
    "# stem. \"simple\" and \"compound\" open a pattern, named after its first verb; behind the "
    "name\n"
    "# of a simple one stands where its forms come from. ~ is the stem, + the participle, - "
    "empty.\n";
constexpr std::string_view kVerbsHead =
    "# The verbs of the index: stem|ending, simple pattern, compound pattern (left out: that of "
    "the\n"
    "# first verb), and \"j'\" where je elides in the present. Patterns: index_patterns.txt.\n";
constexpr std::string_view kSimple = "simple ";
constexpr std::string_view kCompound = "compound ";
constexpr std::string_view kBetween = " | ";

std::string nameOf(const engine::Tense& tense) {
  return french(bytesOf(tense.mood)) + " " + french(bytesOf(tense.name));
}

void writePattern(std::string& out, const Pattern& pattern) {
  for (const engine::Tense& tense : engine::kTenses) {
    const auto first = static_cast<std::size_t>(tense.firstSlot);
    if (pattern.forms[first].empty()) continue;  // a tense of the other kind of pattern
    out.append(nameOf(tense)).append("\t");
    for (std::size_t i = 0; i < static_cast<std::size_t>(tense.slotCount); ++i) {
      const std::string& form = pattern.forms[first + i];
      out.append(i == 0 ? "" : kBetween).append(form == engine::kShownMissing ? "-" : form);
    }
    out.push_back('\n');
  }
}

void writePatterns(std::string& out, std::string_view kind,
                   const std::map<std::string, Pattern>& patterns) {
  for (const auto& [name, pattern] : patterns) {
    out.append("\n").append(kind).append(name);
    if (!pattern.origin.empty()) out.append("\t").append(pattern.origin);
    out.push_back('\n');
    writePattern(out, pattern);
  }
}

const engine::Tense& tenseNamed(std::string_view name) {
  for (const engine::Tense& tense : engine::kTenses)
    if (name == nameOf(tense)) return tense;
  throw std::runtime_error("no tense is called " + std::string(name));
}

void readTense(Pattern& pattern, const std::string& line) {
  const auto tab = line.find('\t');
  const engine::Tense& tense = tenseNamed(line.substr(0, tab));
  std::string rest = line.substr(tab + 1);
  for (int i = 0; i < tense.slotCount; ++i) {
    const auto end = rest.find(kBetween);
    const std::string form = rest.substr(0, end);
    pattern.forms[static_cast<std::size_t>(tense.firstSlot + i)] =
        form == "-" ? std::string(engine::kShownMissing) : form;
    rest = end == std::string::npos ? "" : rest.substr(end + kBetween.size());
  }
}

void readPatterns(std::string_view text, IndexSnapshot& snapshot) {
  std::istringstream lines{std::string(text)};
  Pattern* pattern = nullptr;
  for (std::string line; std::getline(lines, line);) {
    const bool isSimple = line.starts_with(kSimple);
    if (line.empty() || line.starts_with("#")) continue;
    if (!isSimple && !line.starts_with(kCompound)) {
      if (pattern == nullptr) throw std::runtime_error("a pattern is expected: " + line);
      readTense(*pattern, line);
      continue;
    }
    const std::string title = line.substr((isSimple ? kSimple : kCompound).size());
    const auto tab = title.find('\t');
    pattern =
        &(isSimple ? snapshot.simplePatterns : snapshot.compoundPatterns)[title.substr(0, tab)];
    if (tab != std::string::npos) pattern->origin = title.substr(tab + 1);
  }
}

VerbLine readVerb(const std::string& line, const std::string& firstCompound) {
  VerbLine verb;
  std::istringstream fields(line);
  std::string field;
  std::getline(fields, field, '\t');
  verb.stemLength = field.find('|');
  if (verb.stemLength == std::string::npos) throw std::runtime_error("no stem: " + line);
  verb.infinitive = field.erase(verb.stemLength, 1);
  std::getline(fields, verb.simplePattern, '\t');
  std::getline(fields, verb.compoundPattern, '\t');
  if (verb.compoundPattern.empty()) verb.compoundPattern = firstCompound;
  verb.elidesJe = static_cast<bool>(std::getline(fields, field, '\t'));
  return verb;
}

}  // namespace

std::string patternsFile(const IndexSnapshot& snapshot) {
  std::string out(kPatternsHead);
  writePatterns(out, kSimple, snapshot.simplePatterns);
  writePatterns(out, kCompound, snapshot.compoundPatterns);
  return testing::utf8(out);
}

std::string verbsFile(const IndexSnapshot& snapshot) {
  std::string out(kVerbsHead);
  for (const VerbLine& verb : snapshot.verbs) {
    const bool isFirst = verb.compoundPattern == snapshot.verbs.front().compoundPattern;
    const std::string compound = isFirst ? "" : verb.compoundPattern;
    std::string split = verb.infinitive;
    out.append(split.insert(verb.stemLength, "|")).append("\t").append(verb.simplePattern);
    if (verb.elidesJe || !compound.empty()) out.append("\t").append(compound);
    out.append(verb.elidesJe ? "\tj'\n" : "\n");
  }
  return testing::utf8(out);
}

IndexSnapshot readFiles(std::string_view patterns, std::string_view verbs) {
  IndexSnapshot snapshot;
  readPatterns(french(patterns), snapshot);
  std::istringstream lines(french(verbs));
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("#")) continue;
    const std::string first =
        snapshot.verbs.empty() ? line.substr(0, 0) : snapshot.verbs.front().compoundPattern;
    snapshot.verbs.push_back(readVerb(line, first));
    VerbLine& verb = snapshot.verbs.back();
    if (verb.compoundPattern.empty()) verb.compoundPattern = verb.infinitive;
  }
  return snapshot;
}

}  // namespace odmiennik::testing
