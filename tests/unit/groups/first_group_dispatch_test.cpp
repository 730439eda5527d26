// SPDX-License-Identifier: GPL-3.0-or-later
// First-group dispatch: one verb for every row reaches the model that the row names.
#include <gtest/gtest.h>

#include <ostream>

#include "tests/unit/groups/by_rule.h"

namespace odmiennik::groups {
namespace {

// The row, a verb that only this row can claim first, its model, je in the present and the future.
struct Row {
  int order;
  std::string_view infinitive;
  Utf8View model;
  std::string_view present, future;
};

constexpr Row kRows[] = {
    {1, "rapiécer", "rapiécer", "rapièce", "rapiécerai"},
    {2, "envoyer", "envoyer", "envoie", "enverrai"},
    {2, "renvoyer", "envoyer", "renvoie", "renverrai"},
    {3, "fouiller", "regular", "fouille", "fouillerai"},
    {4, "arguer", "arguer", "arguë", "arguërai"},
    {4, "narguer", "arguer", "narguë", "narguërai"},
    {5, "travailler", "regular", "travaille", "travaillerai"},
    {5, "conseiller", "regular", "conseille", "conseillerai"},
    {5, "briller", "regular", "brille", "brillerai"},
    {5, "rallier", "regular", "rallie", "rallierai"},
    {6, "sevrer", "open-e", "sèvre", "sèvrerai"},
    {7, "quereller", "regular", "querelle", "querellerai"},
    {8, "célébrer", "closed-é", "célèbre", "célébrerai"},
    {9, "sécher", "closed-é", "sèche", "sécherai"},
    {10, "exécrer", "closed-é", "exècre", "exécrerai"},
    {11, "régler", "closed-é", "règle", "réglerai"},
    {12, "intégrer", "closed-é", "intègre", "intégrerai"},
    {13, "pénétrer", "closed-é", "pénètre", "pénétrerai"},
    {14, "enfiévrer", "closed-é", "enfièvre", "enfiévrerai"},
    {15, "régner", "ègne", "règne", "régnerai"},
    {16, "léguer", "ègue", "lègue", "léguerai"},
    {17, "disséquer", "èque", "dissèque", "disséquerai"},
    {18, "acquiescer", "-scer", "acquiesce", "acquiescerai"},
    {19, "marquer", "regular", "marque", "marquerai"},
    {20, "naviguer", "-guer", "navigue", "naviguerai"},
    {21, "payer", "-ayer", "paye/paie", "payerai/paierai"},
    {22, "grasseyer", "regular", "grasseye", "grasseyerai"},
    {23, "noyer", "-oyer", "noie", "noierai"},
    {24, "essuyer", "-uyer", "essuie", "essuierai"},
    {25, "gagner", "regular", "gagne", "gagnerai"},
    {26, "semer", "open-e", "sème", "sèmerai"},
    {27, "mener", "open-e", "mène", "mènerai"},
    {28, "receper", "open-e", "recèpe", "recèperai"},
    {29, "peser", "open-e", "pèse", "pèserai"},
    {30, "lever", "open-e", "lève", "lèverai"},
    {31, "dépecer", "-ecer", "dépèce", "dépècerai"},
    {32, "acheter", "-eter", "achète", "achèterai"},
    {32, "jeter", "-eter", "jette", "jetterai"},
    {33, "geler", "-eler", "gèle", "gèlerai"},
    {33, "appeler", "-eler", "appelle", "appellerai"},
    {34, "céder", "closed-é", "cède", "céderai"},
    {35, "galéjer", "closed-é", "galèje", "galéjerai"},
    {36, "révéler", "closed-é", "révèle", "révélerai"},
    {37, "crémer", "closed-é", "crème", "crémerai"},
    {38, "aliéner", "closed-é", "aliène", "aliénerai"},
    {39, "recéper", "closed-é", "recèpe", "recéperai"},
    {40, "espérer", "closed-é", "espère", "espérerai"},
    {41, "léser", "closed-é", "lèse", "léserai"},
    {42, "répéter", "closed-é", "répète", "répéterai"},
    {43, "protéger", "-éger", "protège", "protégerai"},
    {44, "jouer", "regular", "joue", "jouerai"},
    {45, "placer", "-cer", "place", "placerai"},
    {46, "manger", "-ger", "mange", "mangerai"},
    {47, "prier", "-ier", "prie", "prierai"},
    {48, "créer", "-éer", "crée", "créerai"},
    {49, "tuer", "regular", "tue", "tuerai"},
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.infinitive; }

class FirstGroupRow : public ::testing::TestWithParam<Row> {};

TEST_P(FirstGroupRow, reaches_its_model) {
  const ByRule verb(GetParam().infinitive);
  EXPECT_EQ(verb.result.model, GetParam().model);
  EXPECT_EQ(verb.slot(0), GetParam().present);
  EXPECT_EQ(verb.slot(18), GetParam().future);
}

std::string nameOfRow(const ::testing::TestParamInfo<Row>& info) {
  return "Row" + std::to_string(info.param.order) + "_" + std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(Dispatch, FirstGroupRow, ::testing::ValuesIn(kRows), nameOfRow);

TEST(first_group_dispatch, every_one_of_the_49_rows_is_tried) {
  int order = 0;
  for (const Row& row : kRows) {
    EXPECT_LE(row.order, order + 1);
    order = row.order;
  }
  EXPECT_EQ(order, 49);
}

TEST(first_group_dispatch, a_verb_that_no_row_claims_is_regular) {
  for (const std::string_view verb : {"parler", "aimer", "monter", "regarder", "chanter", "er"})
    EXPECT_EQ(ByRule(verb).result.model, "regular") << verb;
}

TEST(first_group_dispatch, longer_endings_win) {
  EXPECT_EQ(ByRule("rapiécer").result.model, "rapiécer") << "not -cer";
  EXPECT_EQ(ByRule("renvoyer").result.model, "envoyer") << "not -oyer";
  EXPECT_EQ(ByRule("narguer").result.model, "arguer") << "not -guer";
  EXPECT_EQ(ByRule("léguer").result.model, "ègue") << "not -guer";
  EXPECT_EQ(ByRule("acquiescer").result.model, "-scer") << "not -cer";
  EXPECT_EQ(ByRule("dépecer").result.model, "-ecer") << "not -cer";
  EXPECT_EQ(ByRule("protéger").result.model, "-éger") << "not -ger";
  EXPECT_EQ(ByRule("pallier").result.model, "regular") << "not -ier";
  EXPECT_EQ(ByRule("quereller").result.model, "regular") << "not -eler";
  EXPECT_EQ(ByRule("imprégner").result.model, "ègne") << "not -gner";
}

TEST(first_group_dispatch, only_the_end_counts) {
  EXPECT_EQ(ByRule("dérapiécer").result.model, "rapiécer");
  EXPECT_EQ(ByRule("mangeurer").result.model, "regular");
}

TEST(first_group_dispatch, compares_letters_exactly) {
  EXPECT_EQ(ByRule("PAYer").result.model, "regular");
}

}  // namespace
}  // namespace odmiennik::groups
