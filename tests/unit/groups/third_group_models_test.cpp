// SPDX-License-Identifier: GPL-3.0-or-later
// The third-group models: their own forms, and what the builders make of them.
#include <gtest/gtest.h>

#include <ostream>

#include "tests/unit/groups/by_rule.h"

namespace odmiennik::groups {
namespace {

struct Row {
  Utf8View model;
  std::string_view infinitive, present, futureJe, pastJe, participle;
};

// Every model but asseoir, on a verb with a prefix where there is one. "quièerent", "lir" and the
// passé simple in "-uiis" are deliberate.
constexpr Row kRows[] = {
    {"bouillir", "débouillir", "débous | débous | débout | débouillons | débouillez | débouillent",
     "débouillirai", "débouillis", "débouilli"},
    {"cueillir", "accueillir",
     "accueille | accueilles | accueille | accueillons | accueillez | accueillent", "accueillerai",
     "accueillis", "accueilli"},
    {"pourvoir", "dépourvoir",
     "dépourvois | dépourvois | dépourvoit | dépourvoyons | dépourvoyez | dépourvoient",
     "dépourvoirai", "dépourvus", "dépourvu"},
    {"saillir", "assaillir",
     "assaille | assailles | assaille | assaillons | assaillez | assaillent", "assaillirai",
     "assaillis", "assailli"},
    {"mouvoir", "émouvoir", "émeus | émeus | émeut | émouvons | émouvez | émeuvent", "émouvrai",
     "émus", "ému"},
    {"vouloir", "vouloir", "veux | veux | veut | voulons | voulez | veulent", "voudrai", "voulus",
     "voulu"},
    {"épandre", "répandre", "répands | répands | répand | répandons | répandez | répandent",
     "répandrai", "répandis", "répandu"},
    {"prendre", "apprendre", "apprends | apprends | apprend | apprenons | apprenez | apprennent",
     "apprendrai", "appris", "appris"},
    {"reindre", "étreindre", "étreins | étreins | étreint | étreignons | étreignez | étreignent",
     "étreindrai", "étreignis", "étreint"},
    {"croître", "accroître", "accrois | accrois | accroît | accroissons | accroissez | accroissent",
     "accroîtrai", "accrus", "accru"},
    {"confire", "déconfire",
     "déconfis | déconfis | déconfit | déconfisons | déconfisez | déconfisent", "déconfirai",
     "déconfis", "déconfit"},
    {"vaincre", "convaincre",
     "convaincs | convaincs | convainc | convainquons | convainquez | convainquent", "convaincrai",
     "convainquis", "convaincu"},
    {"dormir", "endormir", "endors | endors | endort | endormons | endormez | endorment",
     "endormirai", "endormis", "endormi"},
    {"partir", "repartir", "repars | repars | repart | repartons | repartez | repartent",
     "repartirai", "repartis", "reparti"},
    {"quérir", "acquérir", "acquiers | acquiers | acquiert | acquérons | acquérez | acquièerent",
     "acquerrai", "acquis", "acquis"},
    {"servir", "servir", "sers | sers | sert | servons | servez | servent", "servirai", "servis",
     "servi"},
    {"sortir", "ressortir", "ressors | ressors | ressort | ressortons | ressortez | ressortent",
     "ressortirai", "ressortis", "ressorti"},
    {"courir", "parcourir", "parcours | parcours | parcourt | parcourons | parcourez | parcourent",
     "parcourrai", "parcourus", "parcouru"},
    {"ouvrir", "couvrir", "couvre | couvres | couvre | couvrons | couvrez | couvrent", "couvrirai",
     "couvris", "couvert"},
    {"cevoir", "recevoir", "reçois | reçois | reçoit | recevons | recevez | reçoivent", "recevrai",
     "reçus", "reçu"},
    {"devoir", "redevoir", "redois | redois | redoit | redevons | redevez | redoivent", "redevrai",
     "redus", "redû, redue"},
    {"valoir", "prévaloir", "prévaux | prévaux | prévaut | prévalons | prévalez | prévalent",
     "prévaudrai", "prévalus", "prévalu"},
    {"coudre", "découdre", "découds | découds | découd | décousons | décousez | décousent",
     "découdrai", "décousis", "décousu"},
    {"perdre", "perdre", "perds | perds | perd | perdons | perdez | perdent", "perdrai", "perdis",
     "perdu"},
    {"moudre", "moudre", "mouds | mouds | moud | moulons | moulez | moulent", "moudrai", "moulus",
     "moulu"},
    {"aindre", "craindre", "crains | crains | craint | craignons | craignez | craignent",
     "craindrai", "craignis", "craint"},
    {"eindre", "peindre", "peins | peins | peint | peignons | peignez | peignent", "peindrai",
     "peignis", "peint"},
    {"oindre", "joindre", "joins | joins | joint | joignons | joignez | joignent", "joindrai",
     "joignis", "joint"},
    {"soudre", "absoudre", "absous | absous | absout | absolvons | absolvez | absolvent",
     "absoudrai", "absolus", "absous, absoute"},
    {"battre", "combattre", "combats | combats | combat | combattons | combattez | combattent",
     "combattrai", "combattis", "combattu"},
    {"mettre", "permettre", "permets | permets | permet | permettons | permettez | permettent",
     "permettrai", "permis", "permis"},
    {"plaire", "déplaire", "déplais | déplais | déplaît | déplaisons | déplaisez | déplaisent",
     "déplairai", "déplus", "déplu"},
    {"truire", "détruire", "détruis | détruis | détruit | détruisons | détruisez | détruisent",
     "détruirai", "détruiis", "détruit"},
    {"rompre", "interrompre",
     "interromps | interromps | interrompt | interrompons | interrompez | interrompent",
     "interromprai", "interrompis", "interrompu"},
    {"suivre", "poursuivre",
     "poursuis | poursuis | poursuit | poursuivons | poursuivez | poursuivent", "poursuivrai",
     "poursuivis", "poursuivi"},
    {"entir", "sentir", "sens | sens | sent | sentons | sentez | sentent", "sentirai", "sentis",
     "senti"},
    {"tenir", "maintenir",
     "maintiens | maintiens | maintient | maintenons | maintenez | maintiennent", "maintiendrai",
     "maintins", "maintenu"},
    {"venir", "devenir", "deviens | deviens | devient | devenons | devenez | deviennent",
     "deviendrai", "devins", "devenu"},
    {"vêtir", "revêtir", "revêts | revêts | revêt | revêtons | revêtez | revêtent", "revêtirai",
     "revêtis", "revêtu"},
    {"endre", "vendre", "vends | vends | vend | vendons | vendez | vendent", "vendrai", "vendis",
     "vendu"},
    {"ondre", "tondre", "tonds | tonds | tond | tondons | tondez | tondent", "tondrai", "tondis",
     "tondu"},
    {"ordre", "mordre", "mords | mords | mord | mordons | mordez | mordent", "mordrai", "mordis",
     "mordu"},
    {"aître", "connaître", "connais | connais | connaît | connaissons | connaissez | connaissent",
     "connaîtrai", "connus", "connu"},
    {"crire", "décrire", "décris | décris | décrit | décrivons | décrivez | décrivent", "décrirai",
     "décrivis", "décrit"},
    {"faire", "refaire", "refais | refais | refait | refaisons | refaites | refont", "referai",
     "refis", "refait"},
    {"raire", "distraire", "distrais | distrais | distrait | distrayons | distrayez | distraient",
     "distrairai", "", "distrait"},
    {"boire", "boire", "bois | bois | boit | buvons | buvez | boivent", "boirai", "bus", "bu"},
    {"luire", "reluire", "reluis | reluis | reluit | reluisons | reluisez | reluisent", "reluirai",
     "reluiis", "relui"},
    {"nuire", "nuire", "nuis | nuis | nuit | nuisons | nuisez | nuisent", "nuirai", "nuiis", "nui"},
    {"clure", "conclure", "conclus | conclus | conclut | concluons | concluez | concluent",
     "conclurai", "conclus", "conclu"},
    {"vivre", "survivre", "survis | survis | survit | survivons | survivez | survivent",
     "survivrai", "survécus", "survécu"},
    {"fuir", "enfuir", "enfuis | enfuis | enfuit | enfuyons | enfuyez | enfuient", "enfuirai",
     "enfuis", "enfui"},
    {"voir", "entrevoir",
     "entrevois | entrevois | entrevoit | entrevoyons | entrevoyez | entrevoient", "entreverrai",
     "entrevis", "entrevu"},
    {"dire", "contredire",
     "contredis | contredis | contredit | contredisons | contredisez | contredisent", "contredirai",
     "contredis", "contredit"},
    {"lire", "relire", "relis | relis | relir | relisons | relisez | relisent", "relirai", "relus",
     "relu"},
    {"rire", "sourire", "souris | souris | sourit | sourions | souriez | sourient", "sourirai",
     "souris", "souri"},
    {"uire", "cuire", "cuis | cuis | cuit | cuisons | cuisez | cuisent", "cuirai", "cuiis", "cuit"},
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.infinitive; }

class ThirdGroupModel : public ::testing::TestWithParam<Row> {};

TEST_P(ThirdGroupModel, writes_its_present) {
  EXPECT_EQ(ByRule(GetParam().infinitive).tense(0), GetParam().present);
}

TEST_P(ThirdGroupModel, builds_the_future_on_its_base) {
  EXPECT_EQ(ByRule(GetParam().infinitive).slot(18), GetParam().futureJe);
}

TEST_P(ThirdGroupModel, builds_the_passe_simple_on_its_base) {
  EXPECT_EQ(ByRule(GetParam().infinitive).slot(12), GetParam().pastJe);
}

TEST_P(ThirdGroupModel, writes_its_participle_with_the_marker_for_etre) {
  const std::string participle(GetParam().participle);
  EXPECT_EQ(ByRule(GetParam().infinitive).slot(99), participle);
  EXPECT_EQ(ByRule(GetParam().infinitive, engine::kEtre).slot(99), participle + "(e)");
}

TEST_P(ThirdGroupModel, is_the_model_of_its_verb) {
  EXPECT_EQ(ByRule(GetParam().infinitive).result.model, GetParam().model);
}

TEST_P(ThirdGroupModel, builds_imperfect_and_present_participle_on_nous) {
  const ByRule verb(GetParam().infinitive);
  const std::string nous = verb.slot(3);
  const std::string stem = nous.substr(0, nous.size() - 3);
  EXPECT_EQ(verb.slot(6), stem + "ais");
  EXPECT_EQ(verb.slot(9), stem + "ions");
  EXPECT_EQ(verb.slot(98), stem + "ant");
}

TEST_P(ThirdGroupModel, builds_the_conditional_on_the_future) {
  const ByRule verb(GetParam().infinitive);
  const std::string future = verb.slot(18);
  EXPECT_EQ(verb.slot(77), future.substr(0, future.size() - 2) + "aient");
}

std::string nameOfRow(const ::testing::TestParamInfo<Row>& info) {
  return "Row" + std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(All, ThirdGroupModel, ::testing::ValuesIn(kRows), nameOfRow);

TEST(third_group_models, are_58) {
  EXPECT_EQ(std::size(kRows) + 1, 58U) << "asseoir is on its own";
}

TEST(prendre_model, apprendre) {
  const ByRule verb("apprendre");
  EXPECT_EQ(verb.tense(12), "appris | appris | apprit | apprîmes | apprîtes | apprirent");
  EXPECT_EQ(verb.tense(48),
            "apprenne | apprennes | apprenne | apprenions | appreniez | apprennent");
  EXPECT_EQ(verb.slot(56), "apprît");
  EXPECT_EQ(verb.tense(90), "apprends | apprenons | apprenez");
}

TEST(cevoir_model, recevoir) {
  const ByRule verb("recevoir");
  EXPECT_EQ(verb.tense(12), "reçus | reçus | reçut | reçûmes | reçûtes | reçurent");
  EXPECT_EQ(verb.slot(48), "reçoive");
  EXPECT_EQ(verb.slot(51), "recevions");
}

TEST(venir_model, revenir) {
  const ByRule verb("revenir");
  EXPECT_EQ(verb.tense(12), "revins | revins | revint | revînmes | revîntes | revinrent");
  EXPECT_EQ(verb.tense(54),
            "revinsse | revinsses | revînt | revinssions | revinssiez | revinssent");
  EXPECT_EQ(verb.slot(18), "reviendrai");
  EXPECT_EQ(verb.slot(99), "revenu");
}

TEST(tenir_model, retenir) {
  const ByRule verb("retenir");
  EXPECT_EQ(verb.tense(12), "retins | retins | retint | retînmes | retîntes | retinrent");
  EXPECT_EQ(verb.tense(54),
            "retinsse | retinsses | retînt | retinssions | retinssiez | retinssent");
  EXPECT_EQ(verb.slot(53), "retiennent");
}

TEST(asseoir_model, every_form_is_double_with_the_oi_form_first) {
  const ByRule verb("rasseoir");
  EXPECT_EQ(verb.tense(0),
            "rassois/rassieds | rassois/rassieds | rassoit/rassied | rassoyons/rasseyons | "
            "rassoyez/rasseyez | rassoient/rasseyent");
  EXPECT_EQ(verb.tense(6),
            "rassoyais/rasseyais | rassoyais/rasseyais | rassoyait/rasseyait | "
            "rassoyions/rasseyions | rassoyiez/rasseyiez | rassoyaient/rasseyaient");
  EXPECT_EQ(verb.tense(18),
            "rassoirai/rassiérai | rassoiras/rassiéras | rassoira/rassiéra | "
            "rassoirons/rassiérons | rassoirez/rassiérez | rassoiront/rassiéront");
  EXPECT_EQ(verb.tense(72),
            "rassoirais/rassiérais | rassoirais/rassiérais | rassoirait/rassiérait | "
            "rassoirions/rassiérions | rassoiriez/rassiériez | rassoiraient/rassiéraient");
  EXPECT_EQ(verb.slot(98), "rassoyant/rasseyant");
}

TEST(asseoir_model, participle_and_passe_simple_are_single) {
  const ByRule verb("asseoir");
  EXPECT_EQ(verb.slot(99), "assis");
  EXPECT_EQ(verb.tense(12), "assis | assis | assit | assîmes | assîtes | assirent");
  EXPECT_EQ(verb.slot(54), "assisse");
}

TEST(asseoir_model, imperative_and_subjunctive_are_double) {
  const ByRule verb("asseoir");
  EXPECT_EQ(verb.tense(90), "assois/assieds | assoyons/asseyons | assoyez/asseyez");
  EXPECT_EQ(verb.tense(48),
            "assoie/asseye | assoies/asseyes | assoie/asseye | assoyions/asseyions | "
            "assoyiez/asseyiez | assoient/asseyent");
}

TEST(vouloir_model, the_imperative_has_a_missing_variant_before_the_slash) {
  EXPECT_EQ(ByRule("vouloir").tense(90), "veuille/veux |  -- /voulons | veuillez/voulez");
  EXPECT_EQ(ByRule("revouloir").tense(90),
            "reveuille/reveux |  -- /revoulons | reveuillez/revoulez");
}

TEST(vouloir_model, the_subjunctive_is_its_own) {
  EXPECT_EQ(ByRule("vouloir").tense(48),
            "veuille | veuilles | veuille | voulions | vouliez | veuillent");
}

TEST(valoir_model, the_subjunctive_is_its_own) {
  EXPECT_EQ(ByRule("valoir").tense(48), "vaille | vailles | vaille | valions | valiez | vaillent");
}

TEST(faire_model, the_subjunctive_is_its_own) {
  const ByRule verb("refaire");
  EXPECT_EQ(verb.tense(48), "refasse | refasses | refasse | refassions | refassiez | refassent");
  EXPECT_EQ(verb.tense(90), "refais | refaisons | refaites");
  EXPECT_EQ(verb.slot(12), "refis");
}

TEST(dire_model, only_dire_and_redire_have_dites) {
  EXPECT_EQ(ByRule("dire").slot(4), "dites");
  EXPECT_EQ(ByRule("redire").slot(4), "redites");
  EXPECT_EQ(ByRule("contredire").slot(4), "contredisez");
  EXPECT_EQ(ByRule("médire").slot(4), "médisez");
  EXPECT_EQ(ByRule("surredire").slot(4), "surredisez");
}

TEST(dire_model, the_imperative_follows_dites) { EXPECT_EQ(ByRule("dire").slot(92), "dites"); }

TEST(raire_model, has_no_passe_simple_and_so_no_imperfect_subjunctive) {
  const ByRule verb("traire");
  EXPECT_EQ(verb.tense(12), " |  |  |  |  | ");
  EXPECT_EQ(verb.tense(54), " |  |  |  |  | ");
  EXPECT_EQ(verb.slot(98), "trayant");
  EXPECT_EQ(verb.slot(48), "traie");
}

TEST(devoir_model, the_participle_is_du_due) {
  EXPECT_EQ(ByRule("devoir").slot(99), "dû, due");
  EXPECT_EQ(ByRule("devoir", engine::kEtre).slot(99), "dû, due(e)");
}

TEST(soudre_model, the_participle_is_sous_soute) {
  EXPECT_EQ(ByRule("dissoudre").slot(99), "dissous, dissoute");
  EXPECT_EQ(ByRule("dissoudre", engine::kEtre).slot(99), "dissous, dissoute(e)");
}

TEST(querir_model, ils_acquieerent_is_kept) {
  EXPECT_EQ(ByRule("acquérir").slot(5), "acquièerent");
}

TEST(querir_model, the_subjunctive_follows_the_kept_form) {
  EXPECT_EQ(ByRule("acquérir").tense(48),
            "acquièere | acquièeres | acquièere | acquérions | acquériez | acquièerent");
}

TEST(lire_model, il_relir_is_kept) {
  EXPECT_EQ(ByRule("lire").slot(2), "lir");
  EXPECT_EQ(ByRule("relire").slot(2), "relir");
}

TEST(saillir_model, conjugates_like_cueillir_with_the_future_on_the_infinitive) {
  const ByRule verb("tressaillir");
  EXPECT_EQ(verb.tense(0),
            "tressaille | tressailles | tressaille | tressaillons | tressaillez | tressaillent");
  EXPECT_EQ(verb.slot(18), "tressaillirai");
  EXPECT_EQ(verb.slot(90), "tressaille");
}

TEST(croitre_model, il_accroit_has_its_circumflex) {
  EXPECT_EQ(ByRule("accroître").slot(2), "accroît");
  EXPECT_EQ(ByRule("accroître").slot(15), "accrûmes");
}

TEST(plaire_model, il_plait_has_its_circumflex) { EXPECT_EQ(ByRule("plaire").slot(2), "plaît"); }

TEST(vivre_model, vivre_and_survivre) {
  EXPECT_EQ(ByRule("vivre").slot(99), "vécu");
  EXPECT_EQ(ByRule("survivre").slot(99), "survécu");
  EXPECT_EQ(ByRule("vivre").tense(12), "vécus | vécus | vécut | vécûmes | vécûtes | vécurent");
}

TEST(i_endings_without_a_base, are_literal_and_double_the_i) {
  EXPECT_EQ(ByRule("conduire").tense(12),
            "conduiis | conduiis | conduiit | conduiîmes | conduiîtes | conduiirent");
  EXPECT_EQ(ByRule("conduire").slot(54), "conduiisse");
  EXPECT_EQ(ByRule("conduire").slot(56), "conduiît");
  EXPECT_EQ(ByRule("détruire").slot(12), "détruiis");
  EXPECT_EQ(ByRule("luire").slot(12), "luiis");
  EXPECT_EQ(ByRule("nuire").slot(12), "nuiis");
}

TEST(builder_default, is_i_endings_on_the_infinitive_less_two_letters) {
  EXPECT_EQ(ByRule("rendre").slot(12), "rendis");
  EXPECT_EQ(ByRule("ouvrir").slot(12), "ouvris");
  EXPECT_EQ(ByRule("vêtir").slot(12), "vêtis");
}

TEST(cueillir_model, the_future_follows_je) {
  EXPECT_EQ(ByRule("cueillir").slot(18), "cueillerai");
  EXPECT_EQ(ByRule("cueillir").slot(90), "cueille");
}

}  // namespace
}  // namespace odmiennik::groups
