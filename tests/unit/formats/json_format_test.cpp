// SPDX-License-Identifier: GPL-3.0-or-later
// The JSON object of an answer.
#include <gtest/gtest.h>

#include "tests/unit/cli/asking.h"

namespace odmiennik::formats {
namespace {

Utf8Text jsonOf(Utf8View line) {
  cli::Asking asking;
  return asking.textOf(*makeJsonFormat(), line);
}

TEST(json_format, keys_stand_in_the_contracts_order) {
  const Utf8Text json = jsonOf("parler");
  std::size_t last = 0;
  for (const char* key :
       {"typed", "slots", "boxes", "pronouns", "captions", "labels", "group", "transitive",
        "intransitive", "auxiliary", "government", "aux_checked", "aux_enabled", "messages",
        "pronominal", "impersonal", "h_aspirate", "source", "model"}) {
    const std::size_t at = json.find("\"" + Utf8Text(key) + "\":");
    ASSERT_NE(at, std::string::npos) << key;
    EXPECT_GE(at, last) << key;
    last = at;
  }
}

TEST(json_format, what_follows_the_table_is_exactly_this) {
  const Utf8Text json = jsonOf("parler");
  EXPECT_EQ(json.substr(json.find(",\"captions\"")),
            R"(,"captions":["Il faut que ...","Il fallait que ...","Il faut que ...",)"
            R"("Il fallait que ..."],"labels":{"group":"pierwsza","transitive":"tak",)"
            R"("intransitive":"tak","auxiliary":"avoir","government":"b.d."},)"
            R"("aux_checked":true,"aux_enabled":false,"messages":[],"pronominal":false,)"
            R"("impersonal":false,"h_aspirate":false,"source":"rule","model":"regular"})"
            "\n");
}

TEST(json_format, an_object_is_one_line) {
  for (const char* line : {"parler", "", "a\nb", "\x01\x02", "\xFF", "resetuj"}) {
    const Utf8Text json = jsonOf(line);
    EXPECT_EQ(json.find('\n'), json.size() - 1) << line;
  }
}

TEST(json_format, typed_text_that_is_no_utf8_has_replacement_characters) {
  EXPECT_TRUE(jsonOf("a\xFF\"").starts_with("{\"typed\":\"a\uFFFD\\\"\","));
}

TEST(json_format, slots_carry_reflexive_pronouns_and_pronouns_stand_apart) {
  const Utf8Text json = jsonOf("s'habiller");
  EXPECT_NE(json.find("\"slots\":[\"m'habille\","), std::string::npos);
  EXPECT_NE(json.find("\"pronouns\":[\"je\",\"tu\",\"il\",\"ns\",\"vs\",\"ils\","),
            std::string::npos);
}

TEST(json_format, messages_are_listed) {
  EXPECT_NE(jsonOf("x").find("\"messages\":[\"Podany czasownik nie"), std::string::npos);
}

}  // namespace
}  // namespace odmiennik::formats
