// SPDX-License-Identifier: GPL-3.0-or-later
// Third-group dispatch: one verb for every row reaches the model that the row names.
#include <gtest/gtest.h>

#include <ostream>

#include "tests/unit/groups/by_rule.h"

namespace odmiennik::groups {
namespace {

struct Row {
  int order;
  std::string_view infinitive;
  Utf8View model;
  std::string_view present, past;
};

constexpr Row kRows[] = {
    {1, "bouillir", "bouillir", "bous", "bouillis"},
    {2, "accueillir", "cueillir", "accueille", "accueillis"},
    {3, "pourvoir", "pourvoir", "pourvois", "pourvus"},
    {4, "assaillir", "saillir", "assaille", "assaillis"},
    {5, "asseoir", "asseoir", "assois/assieds", "assis"},
    {6, "émouvoir", "mouvoir", "émeus", "émus"},
    {7, "vouloir", "vouloir", "veux", "voulus"},
    {8, "répandre", "épandre", "répands", "répandis"},
    {9, "apprendre", "prendre", "apprends", "appris"},
    {10, "restreindre", "reindre", "restreins", "restreignis"},
    {11, "accroître", "croître", "accrois", "accrus"},
    {12, "confire", "confire", "confis", "confis"},
    {13, "convaincre", "vaincre", "convaincs", "convainquis"},
    {14, "endormir", "dormir", "endors", "endormis"},
    {15, "repartir", "partir", "repars", "repartis"},
    {16, "acquérir", "quérir", "acquiers", "acquis"},
    {17, "servir", "servir", "sers", "servis"},
    {18, "sortir", "sortir", "sors", "sortis"},
    {19, "parcourir", "courir", "parcours", "parcourus"},
    {20, "découvrir", "ouvrir", "découvre", "découvris"},
    {21, "recevoir", "cevoir", "reçois", "reçus"},
    {22, "devoir", "devoir", "dois", "dus"},
    {23, "prévaloir", "valoir", "prévaux", "prévalus"},
    {24, "recoudre", "coudre", "recouds", "recousis"},
    {25, "perdre", "perdre", "perds", "perdis"},
    {26, "moudre", "moudre", "mouds", "moulus"},
    {27, "craindre", "aindre", "crains", "craignis"},
    {28, "peindre", "eindre", "peins", "peignis"},
    {29, "rejoindre", "oindre", "rejoins", "rejoignis"},
    {30, "absoudre", "soudre", "absous", "absolus"},
    {31, "combattre", "battre", "combats", "combattis"},
    {32, "promettre", "mettre", "promets", "promis"},
    {33, "plaire", "plaire", "plais", "plus"},
    {34, "détruire", "truire", "détruis", "détruiis"},
    {35, "rompre", "rompre", "romps", "rompis"},
    {36, "poursuivre", "suivre", "poursuis", "poursuivis"},
    {37, "sentir", "entir", "sens", "sentis"},
    {38, "retenir", "tenir", "retiens", "retins"},
    {39, "revenir", "venir", "reviens", "revins"},
    {40, "revêtir", "vêtir", "revêts", "revêtis"},
    {41, "vendre", "endre", "vends", "vendis"},
    {42, "répondre", "ondre", "réponds", "répondis"},
    {43, "mordre", "ordre", "mords", "mordis"},
    {44, "connaître", "aître", "connais", "connus"},
    {45, "décrire", "crire", "décris", "décrivis"},
    {46, "refaire", "faire", "refais", "refis"},
    {47, "traire", "raire", "trais", ""},
    {48, "boire", "boire", "bois", "bus"},
    {49, "reluire", "luire", "reluis", "reluiis"},
    {50, "nuire", "nuire", "nuis", "nuiis"},
    {51, "conclure", "clure", "conclus", "conclus"},
    {52, "survivre", "vivre", "survis", "survécus"},
    {53, "enfuir", "fuir", "enfuis", "enfuis"},
    {54, "revoir", "voir", "revois", "revis"},
    {55, "contredire", "dire", "contredis", "contredis"},
    {56, "relire", "lire", "relis", "relus"},
    {57, "sourire", "rire", "souris", "souris"},
    {58, "conduire", "uire", "conduis", "conduiis"},
    {59, "haïr", "haïr", "hais", "haïs"},
    {60, "finir", "finir", "finis", "finis"},
    {60, "amuïr", "finir", "amuis", "amuis"},
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.infinitive; }

class ThirdGroupRow : public ::testing::TestWithParam<Row> {};

TEST_P(ThirdGroupRow, reaches_its_model) {
  const ByRule verb(GetParam().infinitive);
  EXPECT_FALSE(verb.result.isRefused);
  EXPECT_EQ(verb.result.model, GetParam().model);
  EXPECT_EQ(verb.slot(0), GetParam().present);
  EXPECT_EQ(verb.slot(12), GetParam().past);
}

std::string nameOfRow(const ::testing::TestParamInfo<Row>& info) {
  return "Row" + std::to_string(info.param.order) + "_" + std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(Dispatch, ThirdGroupRow, ::testing::ValuesIn(kRows), nameOfRow);

TEST(third_group_dispatch, every_one_of_the_60_rows_is_tried) {
  int order = 0;
  for (const Row& row : kRows) {
    EXPECT_LE(row.order, order + 1);
    order = row.order;
  }
  EXPECT_EQ(order, 60);
}

TEST(third_group_dispatch, longer_endings_win) {
  EXPECT_EQ(ByRule("répandre").result.model, "épandre");
  EXPECT_EQ(ByRule("apprendre").result.model, "prendre") << "not endre";
  EXPECT_EQ(ByRule("étreindre").result.model, "reindre") << "not eindre";
  EXPECT_EQ(ByRule("détruire").result.model, "truire") << "not uire";
  EXPECT_EQ(ByRule("reluire").result.model, "luire") << "not uire";
  EXPECT_EQ(ByRule("conduire").result.model, "uire");
  EXPECT_EQ(ByRule("écrire").result.model, "crire") << "not rire";
  EXPECT_EQ(ByRule("recoudre").result.model, "coudre");
  EXPECT_EQ(ByRule("pourvoir").result.model, "pourvoir") << "not voir";
  EXPECT_EQ(ByRule("recevoir").result.model, "cevoir") << "not voir";
  EXPECT_EQ(ByRule("devoir").result.model, "devoir") << "not voir";
  EXPECT_EQ(ByRule("mouvoir").result.model, "mouvoir") << "not voir";
  EXPECT_EQ(ByRule("survivre").result.model, "vivre");
}

TEST(third_group_dispatch, verbs_in_ir_of_the_third_group_do_not_reach_the_second) {
  for (const std::string_view verb :
       {"bouillir", "cueillir", "tressaillir", "dormir", "partir", "servir", "sortir", "courir",
        "ouvrir", "acquérir", "sentir", "mentir", "tenir", "venir", "devenir", "vêtir", "fuir",
        "haïr"})
    EXPECT_NE(ByRule(verb).result.model, "finir") << verb;
}

TEST(third_group_dispatch, the_ending_entir_takes_ralentir) {
  EXPECT_EQ(ByRule("ralentir").result.model, "entir");
  EXPECT_EQ(ByRule("ralentir").slot(0), "ralens");
}

TEST(third_group_dispatch, the_ending_partir_takes_repartir_with_an_accent) {
  EXPECT_EQ(ByRule("répartir").result.model, "partir");
  EXPECT_EQ(ByRule("répartir").slot(0), "répars");
}

TEST(third_group_dispatch, the_bare_croitre_is_left_alone) {
  const ByRule verb("croître");
  EXPECT_FALSE(verb.result.isRefused);
  EXPECT_EQ(verb.result.model, "");
  for (int slot = 0; slot < engine::kSlotCount; ++slot)
    EXPECT_EQ(verb.slot(slot), slot == 96 ? "croître" : "") << slot;
}

TEST(third_group_dispatch, an_infinitive_in_oir_that_no_row_claims_is_refused) {
  for (const std::string_view verb : {"gloir", "oir", "chaloir", "seoir", "soir"}) {
    const ByRule result(verb);
    EXPECT_TRUE(result.result.isRefused) << verb;
    EXPECT_EQ(result.slot(96), verb);
    EXPECT_EQ(result.slot(0), "");
  }
}

TEST(third_group_dispatch, every_other_ending_is_refused_and_the_table_emptied) {
  for (const std::string_view verb : {"", "x", "bla", "croire", "suffire", "absoudr", "Finir!",
                                      "finIR", "être", "r", "re", "dre"}) {
    const ByRule result(verb);
    EXPECT_TRUE(result.result.isRefused) << verb;
    for (int slot = 0; slot < engine::kSlotCount; ++slot)
      EXPECT_EQ(result.slot(slot), slot == 96 ? verb : "") << verb << slot;
  }
}

TEST(third_group_dispatch, while_editing_nothing_is_refused) {
  for (const std::string_view verb : {"bla", "gloir"}) {
    const ByRule result(verb, engine::kAvoir, true);
    EXPECT_FALSE(result.result.isRefused) << verb;
    EXPECT_EQ(result.result.model, "") << verb;
    EXPECT_EQ(result.slot(96), verb);
  }
}

TEST(third_group_dispatch, while_editing_a_known_ending_is_conjugated) {
  EXPECT_EQ(ByRule("finir", engine::kAvoir, true).slot(0), "finis");
}

}  // namespace
}  // namespace odmiennik::groups
