// SPDX-License-Identifier: GPL-3.0-or-later
// The page of the forms that depart from today's norm: every one of them is in a group.
#include <gtest/gtest.h>

#include "tests/help/help_page.h"
#include "tests/support/utf8_printing.h"
#include "tools/build_help/departures_page.h"

namespace odmiennik::help {
namespace {

using tools::Departure;
using tools::DepartureGroup;
using tools::departuresMarkup;
using tools::holds;

const std::vector<DepartureGroup>& groups() {
  static const std::vector<DepartureGroup> read =
      tools::readDepartureGroups(ODMIENNIK_SOURCE_DIR "/help/odstepstwa.txt");
  return read;
}

const std::vector<Departure>& departures() {
  static const std::vector<Departure> read = tools::readDepartures(ODMIENNIK_DEPARTURES);
  return read;
}

DepartureGroup groupOfVerb(const Utf8Text& verb, const Utf8Text& title) {
  return {.name = title, .title = title, .reason = "Bo tak.", .conditions = {.verbs = {verb}}};
}

TEST(departures_page, every_form_that_departs_is_of_a_group) {
  for (const Departure& departure : departures())
    EXPECT_LT(groupOf(departure, groups()), groups().size())
        << departure.verb << ": " << departure.system << ", " << departure.norm;
}

TEST(departures_page, no_group_is_empty_and_each_has_its_reason_and_examples) {
  std::vector<int> members(groups().size() + 1);
  for (const Departure& departure : departures()) ++members[groupOf(departure, groups())];
  for (std::size_t i = 0; i < groups().size(); ++i) {
    EXPECT_GT(members[i], 0) << groups()[i].name;
    EXPECT_FALSE(groups()[i].reason.empty()) << groups()[i].name;
    EXPECT_FALSE(groups()[i].examples.empty()) << groups()[i].name;
  }
}

TEST(departures_page, tells_of_mark_and_tick_first_and_then_of_every_group) {
  const HelpPage* page = findPage("ZnaneOdstepstwa.htm");
  ASSERT_NE(page, nullptr);
  EXPECT_EQ(page->sections().front().heading, "Znak w polu i jedno zaznaczenie");
  for (const DepartureGroup& group : groups())
    EXPECT_NE(asUtf8(page->markup).find("<h3>" + group.title + "</h3>"), Utf8View::npos)
        << group.name;
}

TEST(departures_page, the_pages_on_agreement_and_the_welcome_point_to_it) {
  for (const char* name : {"Uzgodnienie.htm", "default.htm"})
    EXPECT_NE(findPage(name)->markup.find("href=\"ZnaneOdstepstwa.htm\""), std::string::npos)
        << name;
}

TEST(departures_page, the_first_group_that_takes_a_form_has_it) {
  const std::vector<DepartureGroup> two{groupOfVerb("-lire", "rodzina"),
                                        groupOfVerb("lire", "lire")};
  EXPECT_EQ(groupOf({"lire", 2, "il lir", "il lit"}, two), 0U);
  EXPECT_EQ(groupOf({"conduire", 12, "je conduiis", "je conduisis"}, two), 2U);
}

TEST(departures_page, conditions_look_at_box_form_and_norm) {
  const tools::GroupConditions missing{.slots = {12}, .system = {"absol"}, .norm = {"--"}};
  EXPECT_TRUE(holds(missing, {"absoudre", 12, "j'absolus", ""}));
  EXPECT_FALSE(holds(missing, {"absoudre", 12, "j'absolus", "j'absolvis"}));
  EXPECT_FALSE(holds(missing, {"absoudre", 13, "tu absolus", ""}));
  EXPECT_FALSE(holds({.without = {"(e"}}, {"aller", 94, "soyons allé(e)", "soyons allé(e)s"}));
}

TEST(departures_page, a_group_shows_its_counts_verbs_and_examples) {
  DepartureGroup group = groupOfVerb("-lire", "Lire");
  group.examples = {{"lire", {2}}};
  const Utf8Text markup = departuresMarkup(
      {group}, {{"élire", 2, "il élir", "il élit"}, {"lire", 2, "il lir", "il lit"}});
  EXPECT_NE(markup.find("Czasowników: 2, form: 2: <i lang=\"fr\">élire, lire</i>."),
            Utf8Text::npos);
  EXPECT_NE(
      markup.find("il <b class=\"f\" title=\"lire 2\">lir</b></td><td><i lang=\"fr\">il lit</i>"),
      Utf8Text::npos);
}

TEST(departures_page, a_form_without_a_group_stops_the_build) {
  EXPECT_THROW(static_cast<void>(departuresMarkup({}, {{"lire", 2, "il lir", "il lit"}})),
               std::runtime_error);
}

TEST(departures_page, an_empty_group_stops_the_build) {
  EXPECT_THROW(static_cast<void>(departuresMarkup({groupOfVerb("lire", "Lire")}, {})),
               std::runtime_error);
}

TEST(departures_page, an_example_of_another_group_stops_the_build) {
  DepartureGroup group = groupOfVerb("lire", "Lire");
  group.examples = {{"lire", {3}}};
  EXPECT_THROW(static_cast<void>(departuresMarkup({group}, {{"lire", 2, "il lir", "il lit"}})),
               std::runtime_error);
}

}  // namespace
}  // namespace odmiennik::help
