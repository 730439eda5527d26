// SPDX-License-Identifier: GPL-3.0-or-later
// The pages of the tenses and the underlining of their headings.
#include "app/logic/tense_topics.h"

#include <gtest/gtest.h>

#include <set>

#include "engine/slots.h"

namespace odmiennik::app {
namespace {

using Change = TopicHover::Change;

TEST(tense_topics, every_heading_of_a_tense_has_a_page_of_its_own) {
  std::set<Utf8Text> pages;
  for (int heading = 0; heading < kTopicHeadings; ++heading)
    pages.insert(topicOf(heading).value_or(""));
  EXPECT_EQ(pages.size(), 17U);
  EXPECT_EQ(topicOf(0), "strony\\PresentIndicatif.htm");
  EXPECT_EQ(topicOf(10), "strony\\Passé_Subjonctif.htm");
}

TEST(tense_topics, deliberate_the_pages_keep_their_mixture_of_spellings) {
  EXPECT_EQ(topicOf(4), "strony\\FuturAnterieur.htm");
  EXPECT_EQ(topicOf(5), "strony\\PasséAntérieur.htm");
  EXPECT_EQ(topicOf(14), "strony\\ConditionelPrésent.htm");
  EXPECT_EQ(topicOf(13), "strony\\ConditionnelPassé1.htm");
}

TEST(tense_topics, infinitives_and_participles_have_none) {
  for (const int heading : {17, 18, 19, 20, 21, -1}) EXPECT_FALSE(topicOf(heading)) << heading;
}

TEST(tense_topics, headings_stand_above_different_slots) {
  std::set<int> slots;
  for (const TenseHeading& heading : kTenseTopics) slots.insert(heading.firstSlot);
  EXPECT_EQ(slots.size(), 21U);
}

TEST(tense_topics, a_box_leads_to_the_page_of_its_tense) {
  EXPECT_EQ(topicOfSlot(0), topicOf(0));
  EXPECT_EQ(topicOfSlot(5), topicOf(0));
  EXPECT_EQ(topicOfSlot(12), topicOf(7));
  EXPECT_EQ(topicOfSlot(47), topicOf(4));
  EXPECT_EQ(topicOfSlot(89), topicOf(12));
  EXPECT_EQ(topicOfSlot(92), topicOf(16));
  EXPECT_EQ(topicOfSlot(93), topicOf(15));
}

TEST(tense_topics, boxes_below_a_heading_without_a_page_have_their_own) {
  EXPECT_EQ(topicOfSlot(97), "strony\\InfinitifPasse.htm");
  EXPECT_EQ(topicOfSlot(98), "strony\\ParticipePresent.htm");
  EXPECT_EQ(topicOfSlot(99), "strony\\ParticipePasse.htm");
  EXPECT_EQ(topicOfSlot(100), "strony\\ParticipeCompose.htm");
}

TEST(tense_topics, deliberate_of_all_boxes_only_that_of_the_infinitive_has_no_page) {
  for (int slot = 0; slot <= 100; ++slot) EXPECT_EQ(topicOfSlot(slot).has_value(), slot != 96);
}

TEST(tense_topics, a_window_has_its_page_and_the_main_window_none) {
  EXPECT_EQ(topicOfWindow("frmLista"), "strony\\Lista.htm");
  EXPECT_EQ(topicOfWindow("frmZnajdź"), "strony\\OdFormy.htm");
  EXPECT_EQ(topicOfWindow("frmSkąd"), "strony\\OdFormy.htm");
  EXPECT_EQ(topicOfWindow("frmZapisListy"), "strony\\ZapisOdmiany.htm");
  EXPECT_FALSE(topicOfWindow("frmCzasowniki"));
}

TEST(topic_hover, underlines_the_heading_under_the_pointer) {
  TopicHover hover;
  EXPECT_EQ(hover.moved(3), (Change{.on = 3}));
  EXPECT_TRUE(hover.isUnderlined(3));
}

TEST(topic_hover, underlines_the_first_heading_though_the_index_starts_there) {
  TopicHover hover;
  EXPECT_EQ(hover.moved(0), (Change{.on = 0}));
}

TEST(topic_hover, moving_on_leaves_only_the_last_heading_underlined) {
  TopicHover hover;
  (void)hover.moved(3);
  EXPECT_EQ(hover.moved(8), (Change{.off = 3, .on = 8}));
  for (int heading = 0; heading < kTenseHeadings; ++heading)
    EXPECT_EQ(hover.isUnderlined(heading), heading == 8) << heading;
}

TEST(topic_hover, moving_inside_a_heading_changes_nothing) {
  TopicHover hover;
  (void)hover.moved(3);
  EXPECT_EQ(hover.moved(3), Change{});
}

TEST(topic_hover, deliberate_a_heading_without_a_page_leaves_the_underline_where_it_is) {
  TopicHover hover;
  (void)hover.moved(3);
  for (const int heading : {17, 20}) EXPECT_EQ(hover.moved(heading), Change{});
  EXPECT_TRUE(hover.isUnderlined(3));
}

TEST(topic_hover, a_click_opens_the_page_of_an_underlined_heading_only) {
  TopicHover hover;
  EXPECT_FALSE(hover.clicked(3));
  (void)hover.moved(3);
  EXPECT_EQ(hover.clicked(3), topicOf(3));
  EXPECT_FALSE(hover.clicked(8));
}

TEST(topic_hover, a_click_on_a_heading_without_a_page_opens_nothing) {
  TopicHover hover;
  for (int heading = 17; heading <= 20; ++heading) {
    (void)hover.moved(heading);
    EXPECT_FALSE(hover.clicked(heading)) << heading;
  }
}

TEST(topic_hover, a_heading_that_lost_its_underline_gets_it_again_before_the_click) {
  TopicHover hover;
  (void)hover.moved(3);
  (void)hover.moved(8);
  EXPECT_FALSE(hover.clicked(3));
  (void)hover.moved(3);
  EXPECT_EQ(hover.clicked(3), topicOf(3));
}

}  // namespace
}  // namespace odmiennik::app
