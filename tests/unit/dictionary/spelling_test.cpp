// The verb that was meant by another spelling.
#include "dictionary/spelling.h"

#include <gtest/gtest.h>

#include "engine/windows1252.h"
#include "tests/support/test_program.h"

namespace odmiennik::dictionary {
namespace {

using odmiennik::testing::french;

std::string meant(std::string_view typed) { return engine::toUtf8(otherSpelling(french(typed))); }

TEST(OtherSpelling, FindsAVerbWrittenWithoutItsAccents) {
  EXPECT_EQ(meant("etre"), "être");
  EXPECT_EQ(meant("connaitre"), "connaître");
  EXPECT_EQ(meant("paraitre"), "paraître");
  EXPECT_EQ(meant("oeuvrer"), "œuvrer");
}

TEST(OtherSpelling, FindsAVerbWrittenWithTheWrongAccents) { EXPECT_EQ(meant("ètre"), "être"); }

TEST(OtherSpelling, FindsTheTraditionalSpellingBehindThatOf1990) {
  EXPECT_EQ(meant("assoir"), "asseoir");
  EXPECT_EQ(meant("sursoir"), "surseoir");
}

TEST(OtherSpelling, KeepsTheReflexivePrefixThatWasTyped) {
  EXPECT_EQ(meant(" S’Assoir "), "s'asseoir");
  EXPECT_EQ(meant("se connaitre"), "se connaître");
}

TEST(OtherSpelling, IsNoneOfAVerbThatIsSpelledRightOrUnknown) {
  for (const char* typed : {"être", "aimer", "", "se ", "x", "zzzoir", "oir", "'", "123"})
    EXPECT_EQ(meant(typed), "") << typed;
}

}  // namespace
}  // namespace odmiennik::dictionary
