// SPDX-License-Identifier: GPL-3.0-or-later
// What stands in the verb list and what is enabled.
#include "app/logic/verb_list.h"

#include <gtest/gtest.h>

#include "dictionary/verb_index.h"

namespace odmiennik::app {
namespace {

using Entries = std::vector<std::string>;

constexpr ListEnabling kAll{true, true, true, true, true};
constexpr ListEnabling kNone{};

// A list that shows the user's verbs.
VerbList userList(Entries infinitives, std::int32_t storedCount) {
  VerbList list;
  list.loadUserVerbs({true, std::move(infinitives), storedCount});
  return list;
}

void fill(VerbList& list, const Entries& verbs) {
  list.beginLetter();
  for (const std::string& verb : verbs) list.add(verb);
  list.finishLetter();
}

TEST(verb_list, without_a_file_is_empty_and_disabled) {
  VerbList list;
  list.loadUserVerbs({.isFilePresent = false, .infinitives = {}, .storedCount = 3});
  EXPECT_EQ(list.countLabel(), "0/7342");
  EXPECT_EQ(list.enabled(), kNone);
  EXPECT_FALSE(list.selected());
}

TEST(verb_list, with_a_stored_count_of_0_is_empty_and_disabled_whatever_the_file_holds) {
  const VerbList list = userList({"aimer", "finir"}, 0);
  EXPECT_EQ(list.countLabel(), "0/7342");
  EXPECT_EQ(list.enabled(), kNone);
}

TEST(verb_list, shows_every_record_of_a_file_longer_than_the_stored_count) {
  const VerbList list = userList({"finir", "aimer", "aller"}, 1);
  EXPECT_EQ(list.entries(), (Entries{"finir", "aimer", "aller"}));
  EXPECT_EQ(list.countLabel(), "3/7342");
  EXPECT_EQ(list.enabled(), kAll);
}

TEST(verb_list, the_stored_count_enables_even_where_no_record_can_be_read) {
  const VerbList list = userList({}, 2);
  EXPECT_EQ(list.enabled(), kAll);
  EXPECT_FALSE(list.selected());
  EXPECT_EQ(list.selectedVerb(), "");
}

TEST(verb_list, chosen_again_without_a_record_keeps_only_the_delete_button) {
  VerbList list;
  list.chooseUserVerbs({true, {}, 2});
  EXPECT_EQ(list.enabled(), (ListEnabling{.cmdUsuń = true}));
}

TEST(verb_list, selects_the_first_entry_when_it_is_loaded) {
  EXPECT_EQ(userList({"finir", "aimer"}, 2).selectedVerb(), "finir");
}

TEST(verb_list, loading_clears_what_stood_there) {
  VerbList list = userList({"finir", "aimer"}, 2);
  list.loadUserVerbs({true, {"aller"}, 1});
  EXPECT_EQ(list.entries(), Entries{"aller"});
}

TEST(verb_list, a_letter_leaves_the_delete_button_untouched) {
  VerbList disabled = userList({}, 0);
  fill(disabled, {"kidnapper"});
  EXPECT_EQ(disabled.enabled(), (ListEnabling{true, true, true, false, true}));
  VerbList enabled = userList({"aimer"}, 1);
  fill(enabled, {});
  EXPECT_EQ(enabled.enabled(), (ListEnabling{.cmdUsuń = true}));
}

TEST(verb_list, a_letter_with_verbs_selects_the_first) {
  VerbList list;
  fill(list, {"kidnapper", "klaxonner"});
  EXPECT_EQ(list.selectedVerb(), "kidnapper");
  EXPECT_EQ(list.countLabel(), "2/7342");
}

TEST(verb_list, a_letter_without_verbs_is_empty_and_disabled) {
  VerbList list;
  fill(list, {});
  EXPECT_EQ(list.countLabel(), "0/7342");
  EXPECT_EQ(list.enabled(), kNone);
}

TEST(verb_list, is_disabled_and_out_of_sight_while_a_letter_is_filled) {
  VerbList list = userList({"aimer"}, 1);
  list.beginLetter();
  EXPECT_TRUE(list.isFilling());
  EXPECT_FALSE(list.enabled().lstCzasowniki);
  EXPECT_TRUE(list.entries().empty());
  list.finishLetter();
  EXPECT_FALSE(list.isFilling());
}

TEST(deleting_from_the_list, drops_every_entry_of_the_infinitive) {
  VerbList list = userList({"aimer", "finir", "aimer", "aller"}, 4);
  list.drop("aimer");
  EXPECT_EQ(list.entries(), (Entries{"finir", "aller"}));
  EXPECT_EQ(list.countLabel(), "2/7342");
}

TEST(deleting_from_the_list, selects_the_next_entry) {
  VerbList list = userList({"aimer", "finir", "aller"}, 3);
  list.select(1);
  list.drop("finir");
  EXPECT_EQ(list.selectedVerb(), "aller");
}

TEST(deleting_from_the_list, selects_the_new_last_entry_behind_the_end) {
  VerbList list = userList({"aimer", "finir", "aller"}, 3);
  list.select(2);
  list.drop("aller");
  EXPECT_EQ(list.selectedVerb(), "finir");
}

TEST(deleting_from_the_list, selects_the_neighbour_among_several_entries_of_the_verb) {
  VerbList list = userList({"aimer", "finir", "aimer", "aller", "voir"}, 5);
  list.select(2);
  list.drop("aimer");
  EXPECT_EQ(list.selectedVerb(), "aller");
}

TEST(deleting_from_the_list, the_last_entry_disables_the_buttons) {
  VerbList list = userList({"aimer"}, 1);
  list.drop("aimer");
  EXPECT_EQ(list.enabled(), (ListEnabling{.lstCzasowniki = true}));
  EXPECT_EQ(list.countLabel(), "0/7342");
  EXPECT_FALSE(list.selected());
}

TEST(deleting_from_the_list, others_left_change_nothing_that_is_enabled) {
  VerbList list = userList({"aimer", "finir"}, 2);
  list.drop("aimer");
  EXPECT_EQ(list.enabled(), kAll);
}

TEST(deleting_from_the_list, an_infinitive_that_is_not_there_changes_nothing) {
  VerbList list = userList({"aimer", "finir"}, 2);
  list.select(1);
  list.drop("aller");
  EXPECT_EQ(list.entries(), (Entries{"aimer", "finir"}));
  EXPECT_EQ(list.selectedVerb(), "finir");
}

TEST(deleting_from_the_list, nothing_selected_stays_nothing_selected) {
  VerbList list = userList({"aimer", "finir"}, 2);
  list.select(99);
  list.drop("aimer");
  EXPECT_FALSE(list.selected());
  EXPECT_EQ(list.entries(), Entries{"finir"});
}

TEST(list_choices, are_the_users_verbs_and_26_letters) {
  ASSERT_EQ(kListChoices.size(), 27U);
  EXPECT_EQ(kListChoices[0], "Wprowadzone przez użytkownika");
  for (int choice = 1; choice <= 26; ++choice)
    EXPECT_EQ(kListChoices[static_cast<std::size_t>(choice)], Utf8Text(1, letterOfChoice(choice)));
}

TEST(list_choices, all_letters_together_hold_the_number_behind_the_slash) {
  int verbs = 0;
  for (int choice = 1; choice <= 26; ++choice)
    verbs += dictionary::verbCount(letterOfChoice(choice));
  EXPECT_EQ(verbs, kListedVerbs);
}

TEST(growing_bar, grows_from_empty_to_full_without_shrinking) {
  for (const int number : {1, 3, 100, 1026}) {
    EXPECT_EQ(barWidth(0, number, 3000), 0);
    for (int filled = 1; filled <= number; ++filled)
      EXPECT_GE(barWidth(filled, number, 3000), barWidth(filled - 1, number, 3000));
    EXPECT_EQ(barWidth(number, number, 3000), 3000);
  }
}

TEST(growing_bar, stays_empty_for_a_letter_without_verbs) { EXPECT_EQ(barWidth(0, 0, 3000), 0); }

TEST(growing_bar, does_not_overflow) { EXPECT_EQ(barWidth(7342, 7342, 2000000000), 2000000000); }

}  // namespace
}  // namespace odmiennik::app
