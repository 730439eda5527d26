// SPDX-License-Identifier: GPL-3.0-or-later
// Golden conjugations: every model of the three groups, and the built-in verbs.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dictionary/verb_labels.h"
#include "engine/string_table.h"
#include "engine/windows1252.h"
#include "tests/support/form_layout.h"
#include "tests/support/golden_file.h"
#include "tests/support/test_program.h"

namespace odmiennik::testing {
namespace {

using engine::kAvoir;
using engine::kEtre;

std::string nameOfAuxiliary(std::uint8_t auxiliary) {
  return std::string(bytesOf(dictionary::auxiliaryName(auxiliary)));
}

// The slots of a verb, conjugated as a verb of which only the auxiliary is known.
std::string blockByRule(std::string_view infinitive, std::uint8_t auxiliary = kAvoir) {
  TestProgram program;
  program.forgetBuiltinVerbs();
  program.tellRecord(infinitive, auxiliary == kAvoir ? "|1|1|1|1" : "|1|1|1|2");
  program.conjugate(infinitive);
  return "verb " + std::string(infinitive) + ", model " +
         std::string(bytesOf(program.state().model)) + ", " + nameOfAuxiliary(auxiliary) + "\n" +
         layOut([&](int slot) { return program.slot(slot); }) + "\n";
}

// A built-in verb completed with the auxiliary, nothing else known of it.
std::string builtinBlock(std::string_view infinitive, std::uint8_t auxiliary) {
  TestProgram program;
  const std::string key = french(infinitive).starts_with("s'") ? std::string(infinitive.substr(2))
                                                               : std::string(infinitive);
  program.tellRecord(key, auxiliary == kAvoir ? "|4|1|1|1" : "|4|1|1|2");
  program.conjugate(key);
  return "verb " + std::string(infinitive) + ", " + nameOfAuxiliary(auxiliary) + "\n" +
         layOut([&](int slot) { return program.slot(slot); }) + "\n";
}

std::string blocksByRule(const std::vector<std::string_view>& infinitives) {
  std::string blocks;
  for (const std::string_view infinitive : infinitives) blocks += blockByRule(infinitive);
  return blocks;
}

TEST(golden_models, first_group) {
  expectGolden(
      "first_group.txt",
      blocksByRule({"parler",    "rapiécer",   "dérapiécer", "envoyer",  "renvoyer", "fouiller",
                    "arguer",    "travailler", "sevrer",     "célébrer", "régner",   "léguer",
                    "disséquer", "acquiescer", "marquer",    "naviguer", "payer",    "grasseyer",
                    "noyer",     "essuyer",    "semer",      "lever",    "dépecer",  "acheter",
                    "jeter",     "geler",      "appeler",    "céder",    "protéger", "jouer",
                    "commencer", "manger",     "prier",      "créer",    "tuer"}) +
          blockByRule("arriver", kEtre));
}

TEST(golden_models, second_group) {
  expectGolden("second_group.txt",
               blocksByRule({"finir", "choisir", "amuïr", "haïr"}) + blockByRule("finir", kEtre));
}

TEST(golden_models, third_group) {
  expectGolden(
      "third_group.txt",
      blocksByRule({"bouillir",  "cueillir", "pourvoir", "tressaillir", "asseoir",   "émouvoir",
                    "vouloir",   "répandre", "prendre",  "apprendre",   "étreindre", "accroître",
                    "confire",   "vaincre",  "dormir",   "partir",      "acquérir",  "servir",
                    "sortir",    "courir",   "couvrir",  "recevoir",    "devoir",    "redevoir",
                    "valoir",    "coudre",   "perdre",   "moudre",      "craindre",  "peindre",
                    "joindre",   "absoudre", "battre",   "mettre",      "plaire",    "détruire",
                    "rompre",    "suivre",   "sentir",   "ralentir",    "tenir",     "revêtir",
                    "vendre",    "répondre", "mordre",   "connaître",   "écrire",    "faire",
                    "distraire", "boire",    "reluire",  "nuire",       "conclure",  "vivre",
                    "fuir",      "voir",     "dire",     "contredire",  "lire",      "rire",
                    "conduire"}) +
          blockByRule("venir", kEtre) + blockByRule("devoir", kEtre) +
          blockByRule("dissoudre", kEtre));
}

TEST(golden_builtin_verbs, are_completed_with_both_auxiliaries) {
  namespace text_id = engine::text_id;
  const int count = std::stoi(std::string(engine::textOf(text_id::kBuiltinCount)));
  std::string blocks;
  for (int entry = 1; entry <= count; ++entry) {
    const std::string infinitive = testing::utf8(engine::textOf(text_id::kBuiltinCount + entry));
    blocks += builtinBlock(infinitive, kAvoir) + builtinBlock(infinitive, kEtre);
  }
  expectGolden("builtin_verbs.txt", blocks);
}

}  // namespace
}  // namespace odmiennik::testing
