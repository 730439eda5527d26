// SPDX-License-Identifier: GPL-3.0-or-later
// Writing of forms out of parts.
#include "engine/form_table.h"

#include <gtest/gtest.h>

namespace odmiennik::engine {
namespace {

// What a slot holds that held one text and is set to the parts of another.
std::string rewritten(const std::string& before, std::string_view stem, std::string_view ending) {
  std::string slot = before;
  setTo(slot, stem, ending);
  return slot;
}

// Past every size at which letters are copied or kept in another way.
constexpr std::size_t kLongest = 70;

TEST(set_to, a_slot_holds_the_parts_in_a_row_whatever_their_lengths) {
  for (std::size_t stem = 0; stem <= kLongest; ++stem)
    for (std::size_t ending = 0; ending <= kLongest; ++ending) {
      const std::string first(stem, 's'), second(ending, 'e');
      EXPECT_EQ(rewritten("", first, second), first + second);
    }
}

TEST(set_to, nothing_is_left_of_what_a_slot_held_before) {
  for (std::size_t before = 0; before <= kLongest; ++before)
    for (std::size_t length = 0; length <= kLongest; ++length)
      EXPECT_EQ(rewritten(std::string(before, 'x'), "p", std::string(length, 'e')),
                "p" + std::string(length, 'e'));
}

TEST(set_to, a_text_that_grows_is_still_ended_as_programs_in_c_expect) {
  std::string slot;
  setTo(slot, std::string_view("eussions "), std::string_view("abaissé"));
  EXPECT_EQ(slot.c_str()[slot.size()], '\0');
}

}  // namespace
}  // namespace odmiennik::engine
