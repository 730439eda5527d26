// SPDX-License-Identifier: GPL-3.0-or-later
// Lists of verbs that are saved.
#include "app/logic/saved_list.h"

#include <gtest/gtest.h>

#include "app/logic/verb_list.h"

namespace odmiennik::app {
namespace {

TEST(saved_list, is_called_after_what_was_chosen) {
  EXPECT_EQ(savedList(0, {"aimer"}).name, "Moje czasowniki");
  EXPECT_EQ(savedList(26, {"zapper"}).name, "Czasowniki na literę z");
}

TEST(saved_list, knows_its_letter_unless_it_is_the_users_own) {
  EXPECT_EQ(savedList(1, {}).letter, "a");
  EXPECT_EQ(savedList(0, {}).letter, "");
}

TEST(saved_list, can_be_the_whole_index) {
  const SavedList all = wholeIndex();
  EXPECT_EQ(all.infinitives.size(), static_cast<std::size_t>(kListedVerbs));
  EXPECT_EQ(all.infinitives.front().front(), 'a');
  EXPECT_EQ(all.infinitives.back().front(), 'z');
}

}  // namespace
}  // namespace odmiennik::app
