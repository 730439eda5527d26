// SPDX-License-Identifier: GPL-3.0-or-later
// Where a long text is cut into pages.
#include "app/logic/page_breaks.h"

#include <gtest/gtest.h>

namespace odmiennik::app {
namespace {

// Lines of ten units, one below the other.
std::vector<TextPiece> lines(int count) {
  std::vector<TextPiece> pieces;
  for (int i = 0; i < count; ++i) pieces.push_back({{i * 10.0, i * 10.0 + 10}});
  return pieces;
}

TEST(page_breaks, a_text_without_lines_has_no_page) { EXPECT_TRUE(pagesOf({}, 100).empty()); }

TEST(page_breaks, what_has_room_stands_on_one_page) {
  EXPECT_EQ(pagesOf(lines(3), 30), (std::vector<TextPage>{{{}, {0, 30}}}));
}

TEST(page_breaks, a_line_without_room_begins_the_next_page) {
  EXPECT_EQ(pagesOf(lines(5), 35), (std::vector<TextPage>{{{}, {0, 30}}, {{}, {30, 50}}}));
}

TEST(page_breaks, a_gap_above_the_first_line_of_a_page_is_left_out) {
  EXPECT_EQ(pagesOf({{{0, 10}}, {{25, 35}}}, 20),
            (std::vector<TextPage>{{{}, {0, 10}}, {{}, {25, 35}}}));
}

TEST(page_breaks, a_heading_goes_with_its_text) {
  std::vector<TextPiece> pieces = lines(4);
  pieces[2].staysWithNext = true;
  EXPECT_EQ(pagesOf(pieces, 30), (std::vector<TextPage>{{{}, {0, 20}}, {{}, {20, 40}}}));
}

TEST(page_breaks, what_stays_together_is_parted_where_it_is_longer_than_a_page) {
  std::vector<TextPiece> pieces = lines(4);
  for (TextPiece& piece : pieces) piece.staysWithNext = true;
  EXPECT_EQ(pagesOf(pieces, 30), (std::vector<TextPage>{{{}, {0, 30}}, {{}, {30, 40}}}));
}

TEST(page_breaks, the_head_of_a_table_takes_its_room_on_every_page) {
  std::vector<TextPiece> pieces = lines(5);
  for (std::size_t row = 1; row < pieces.size(); ++row) pieces[row].heading = {0, 10};
  EXPECT_EQ(pagesOf(pieces, 30), (std::vector<TextPage>{{{}, {0, 30}}, {{0, 10}, {30, 50}}}));
}

TEST(page_breaks, a_row_higher_than_a_page_is_cut_and_nothing_of_it_lost) {
  EXPECT_EQ(pagesOf({{{0, 70}}, {{70, 80}}}, 30),
            (std::vector<TextPage>{{{}, {0, 30}}, {{}, {30, 60}}, {{}, {60, 70}}, {{}, {70, 80}}}));
}

}  // namespace
}  // namespace odmiennik::app
