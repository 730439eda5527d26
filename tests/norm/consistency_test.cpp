// SPDX-License-Identifier: GPL-3.0-or-later
// What holds for every verb of the index in the norm.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "dictionary/verb_index.h"
#include "engine/windows1252.h"
#include "tests/support/test_program.h"

namespace odmiennik::testing {
namespace {

constexpr int kSimpleTenses[] = {0, 6, 12, 18, 48, 54, 72};

// The halves of "assois/assieds" and of "dû, due", without the agreement's brackets.
std::vector<std::string> halves(std::string form) {
  if (form == " -- ") return {};
  for (const char* bracket : {"(e)(s)", "(e)s", "(e)"})
    if (form.ends_with(bracket)) form.resize(form.size() - std::string(bracket).size());
  std::vector<std::string> parts;
  for (std::size_t from = 0; from <= form.size();) {
    const std::size_t end = std::min(form.find_first_of("/,;", from), form.size());
    std::string part = form.substr(from, end - from);
    part.erase(0, part.find_first_not_of(' '));
    if (!part.empty() && part != "--" && part != "-- ") parts.push_back(part);
    from = end + 1;
  }
  return parts;
}

bool endsInOneOf(const std::string& form, const std::vector<std::string>& ends) {
  return std::ranges::any_of(ends, [&](const std::string& end) { return form.ends_with(end); });
}

// Calls `check` with each verb of the index, conjugated.
template <typename Check>
void forEveryVerb(Check check) {
  TestProgram program;
  program.followNorm();
  for (int position = 0; position < dictionary::verbCount(); ++position) {
    const std::string verb = testing::utf8(dictionary::verbAt(position));
    program.conjugate(verb);
    check(verb, program);
  }
}

void expectEnds(const std::string& verb, const TestProgram& program, int slot,
                const std::vector<std::string>& ends) {
  for (const std::string& form : halves(program.box(slot)))
    EXPECT_TRUE(endsInOneOf(form, ends)) << verb << ", slot " << slot << ": " << form;
}

TEST(every_verb_in_the_norm, has_no_vowel_twice_by_accident) {
  forEveryVerb([](const std::string& verb, const TestProgram& program) {
    for (int slot = 0; slot < engine::kSlotCount; ++slot) {
      const std::string form = program.box(slot);
      for (const char* accident : {"uii", "aurainet", "èe", "ièer"})
        EXPECT_EQ(form.find(accident), std::string::npos) << verb << ": " << form;
    }
    // nous criions, vous riiez: -i and -ions meet in these two persons only.
    for (const int tense : kSimpleTenses)
      for (const int person : {0, 1, 2, 5}) {
        const std::string form = program.box(tense + person);
        EXPECT_EQ(form.find("ii"), std::string::npos) << verb << ": " << form;
      }
  });
}

TEST(every_verb_in_the_norm, has_nous_in_ons_or_mes) {
  forEveryVerb([](const std::string& verb, const TestProgram& program) {
    for (const int tense : {6, 18, 48, 54, 72}) expectEnds(verb, program, tense + 3, {"ons"});
    expectEnds(verb, program, 3, {"ons", "sommes"});
    expectEnds(verb, program, 15, {"mes"});
  });
}

TEST(every_verb_in_the_norm, has_vous_in_ez_or_tes) {
  forEveryVerb([](const std::string& verb, const TestProgram& program) {
    for (const int tense : {6, 18, 48, 54, 72}) expectEnds(verb, program, tense + 4, {"ez"});
    expectEnds(verb, program, 4, {"ez", "êtes", "faites", "dites"});
    expectEnds(verb, program, 16, {"tes"});
  });
}

TEST(every_verb_in_the_norm, has_ils_in_nt) {
  forEveryVerb([](const std::string& verb, const TestProgram& program) {
    for (const int tense : kSimpleTenses) expectEnds(verb, program, tense + 5, {"nt"});
  });
}

TEST(every_verb_in_the_norm, has_a_participle_of_a_known_end) {
  forEveryVerb([](const std::string& verb, const TestProgram& program) {
    expectEnds(verb, program, 99,
               {"é", "i", "ï", "u", "û", "s", "t", "ée", "ie", "ue", "te", "se"});
    expectEnds(verb, program, 98, {"ant"});
  });
}

// nous and vous of the subjonctif are those of the imparfait, but for the verbs that grammars name.
TEST(every_verb_in_the_norm, has_nous_and_vous_of_the_subjonctif_as_in_the_imparfait) {
  const std::vector<std::string> kOwnSubjunctive{"être",    "avoir", "faire",  "savoir",
                                                 "pouvoir", "seoir", "vouloir"};
  forEveryVerb([&](const std::string& verb, const TestProgram& program) {
    if (endsInOneOf(verb, kOwnSubjunctive)) return;
    for (const int person : {3, 4}) {
      const std::string imperfect = program.box(6 + person);
      const std::string subjunctive = program.box(48 + person);
      const bool isDefective = imperfect == " -- " || subjunctive == " -- ";
      if (isDefective) continue;
      EXPECT_EQ(subjunctive, imperfect) << verb;
    }
  });
}

}  // namespace
}  // namespace odmiennik::testing
