// SPDX-License-Identifier: GPL-3.0-or-later
// Every built-in verb, completed, has exactly the forms that its source says it has.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>
#include <sstream>

#include "dictionary/builtin_verbs.h"
#include "dictionary/verb_index.h"
#include "engine/completion.h"
#include "engine/compound_tenses.h"
#include "engine/normalization.h"
#include "tests/support/test_program.h"

namespace odmiennik::dictionary {
namespace {

using odmiennik::testing::french;
using Slots = std::set<int>;
using Words = std::vector<std::string>;

struct Tense {
  std::string name;  // as the data's source has it: mood and name, in the indicative the name alone
  int firstSlot;
  int slotCount;
  bool isCompound;
};

bool isCompound(const engine::Tense& tense) {
  engine::FormTable forms;
  forms[tense.firstSlot] = engine::kPlaceholder;
  return engine::hasCompoundPlaceholder(forms);
}

std::string sourceName(const engine::Tense& tense) {
  if (tense.mood == "Indicatif") return std::string(bytesOf(tense.name));
  std::string name = std::string(bytesOf(tense.mood)) + " " + std::string(bytesOf(tense.name));
  name[0] = static_cast<char>(name[0] - 'A' + 'a');
  return name;
}

const std::vector<Tense> kTenses = [] {
  std::vector<Tense> tenses;
  for (const engine::Tense& tense : engine::kTenses)
    tenses.push_back({sourceName(tense), tense.firstSlot, tense.slotCount, isCompound(tense)});
  return tenses;
}();

struct Source {
  std::string infinitive;
  std::uint8_t auxiliary = engine::kAvoir;
  std::string has = "tout";
  bool isExplained = false;
};

std::vector<Source> readSources() {
  std::ifstream file(ODMIENNIK_SOURCE_DIR "/data/builtin_verbs.txt");
  std::vector<Source> sources;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("verb ")) sources.push_back({.infinitive = line.substr(5)});
    if (line == "auxiliary être") sources.back().auxiliary = engine::kEtre;
    if (line.starts_with("has ")) sources.back().has = line.substr(4);
    if (line.starts_with("why ")) sources.back().isExplained = true;
  }
  return sources;
}

Words split(const std::string& text, const std::string& divider) {
  Words parts;
  std::size_t start = 0, end;
  while ((end = text.find(divider, start)) != std::string::npos) {
    parts.push_back(text.substr(start, end - start));
    start = end + divider.size();
  }
  parts.push_back(text.substr(start));
  return parts;
}

// The slots of a tense, or of those persons of it that are named.
void addSlots(const Tense& tense, const Words& persons, Slots& slots) {
  const Words six{"je", "tu", "il", "nous", "vous", "ils"}, three{"tu", "nous", "vous"};
  const Words& names = tense.slotCount == 6 ? six : three;
  for (const std::string& person : persons)
    EXPECT_NE(std::ranges::find(names, person), names.end()) << tense.name << ": " << person;
  for (int i = 0; i < tense.slotCount; ++i)
    if (persons.empty() || std::ranges::count(persons, names[static_cast<std::size_t>(i)]) != 0)
      slots.insert(tense.firstSlot + i);
}

// "composés" is every compound tense; with persons, those that have all six, and the single forms.
void addCompounds(const Words& persons, Slots& slots) {
  for (const Tense& tense : kTenses)
    if (tense.isCompound && (persons.empty() || tense.slotCount != 3))
      addSlots(tense, tense.slotCount == 6 ? persons : Words{}, slots);
}

void addItem(const std::string& item, Slots& slots) {
  const Words parts = split(item, ": ");
  const Words persons = parts.size() > 1 ? split(parts[1], " ") : Words{};
  if (parts[0] == "composés") return addCompounds(persons, slots);
  const auto tense = std::ranges::find(kTenses, parts[0], &Tense::name);
  ASSERT_NE(tense, kTenses.end()) << item;
  addSlots(*tense, persons, slots);
}

Slots declaredSlots(const std::string& has) {
  Slots slots;
  if (has == "tout")
    for (const Tense& tense : kTenses) addSlots(tense, {}, slots);
  else
    for (const std::string& item : split(has, "; ")) addItem(item, slots);
  return slots;
}

engine::FormTable completed(const Source& source, std::uint8_t auxiliary) {
  engine::FormTable forms;
  const std::string infinitive = french(source.infinitive);
  EXPECT_TRUE(BuiltinVerbTable().load(engine::withoutReflexivePrefix(infinitive), forms));
  engine::completeStoredVerb(forms, auxiliary);
  return forms;
}

bool isVerb(const Source& source) {
  return source.infinitive != "autor" && source.infinitive != "pozdrowienia";
}

TEST(builtin_verbs_completed, have_exactly_the_forms_that_their_source_declares) {
  const auto sources = readSources();
  ASSERT_EQ(sources.size(), 84U);
  for (const Source& source : sources) {
    if (!isVerb(source)) continue;
    const engine::FormTable forms = completed(source, source.auxiliary);
    const Slots declared = declaredSlots(source.has);
    for (int slot = 0; slot < engine::kSlotCount; ++slot)
      EXPECT_EQ(!forms[slot].empty(), declared.contains(slot)) << source.infinitive << " " << slot;
  }
}

TEST(builtin_verbs_completed, have_no_placeholder_left_with_either_auxiliary) {
  for (const Source& source : readSources())
    for (const std::uint8_t auxiliary : {engine::kEtre, engine::kAvoir}) {
      const engine::FormTable forms = completed(source, auxiliary);
      for (int slot = 0; slot < engine::kSlotCount; ++slot)
        EXPECT_EQ(forms[slot].find('*'), std::string::npos) << source.infinitive << " " << slot;
    }
}

TEST(builtin_verbs_completed, lack_forms_only_where_the_source_says_why) {
  int defective = 0;
  for (const Source& source : readSources()) {
    EXPECT_EQ(source.has != "tout", source.isExplained && source.has != "tout")
        << source.infinitive;
    defective += source.has != "tout";
  }
  EXPECT_GT(defective, 20);
}

// The window shows both: the group, and the forms that are missing.
TEST(builtin_verbs_completed, are_defective_in_the_index_just_where_forms_are_missing) {
  GeneralVerbIndex index;
  for (const Source& source : readSources()) {
    if (!isVerb(source)) continue;
    // deliberate: without an imperative for its sense only, and not defective to any grammar.
    const bool isDefective = source.has != "tout" && source.infinitive != "pouvoir";
    const std::string record(index.record(engine::lookupKey(french(source.infinitive))));
    EXPECT_EQ(record.substr(0, 3) == "|4|", isDefective) << source.infinitive << record;
  }
}

}  // namespace
}  // namespace odmiennik::dictionary
