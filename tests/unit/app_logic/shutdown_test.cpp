// What is asked and done when the program is closed.
#include "app/logic/shutdown.h"

#include <gtest/gtest.h>

namespace odmiennik::app {
namespace {

using enum ClosingStep;
using Steps = std::vector<ClosingStep>;

TEST(closing, by_the_close_box_or_the_menu_asks) {
  EXPECT_TRUE(asksBeforeClosing(CloseReason::closeBox, false));
  EXPECT_TRUE(asksBeforeClosing(CloseReason::programCode, false));
}

TEST(closing, by_the_system_asks_nothing) {
  EXPECT_FALSE(asksBeforeClosing(CloseReason::systemShutdown, false));
  EXPECT_FALSE(asksBeforeClosing(CloseReason::taskManager, false));
}

TEST(closing, of_an_aborted_first_start_asks_nothing) {
  for (const CloseReason reason : {CloseReason::closeBox, CloseReason::programCode})
    EXPECT_FALSE(asksBeforeClosing(reason, true));
}

TEST(closing, asks_to_save_behind_the_exit_question_and_before_the_settings_are_saved) {
  EXPECT_EQ(closingSteps(CloseReason::closeBox, false),
            (Steps{askToExit, askToSaveVerb, saveSettings, end}));
}

TEST(closing, by_the_system_still_asks_to_save_the_verb_and_saves_the_settings) {
  EXPECT_EQ(closingSteps(CloseReason::systemShutdown, false),
            (Steps{askToSaveVerb, saveSettings, end}));
}

}  // namespace
}  // namespace odmiennik::app
