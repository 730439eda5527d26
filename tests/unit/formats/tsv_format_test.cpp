// SPDX-License-Identifier: GPL-3.0-or-later
// Tab-separated values.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/unit/cli/asking.h"

namespace odmiennik::formats {
namespace {

Utf8Text tsvOf(Utf8View line) {
  cli::Asking asking;
  return asking.textOf(*makeTsvFormat(), line);
}

bool hasLine(const Utf8Text& tsv, const Utf8Text& line) {
  return ("\n" + tsv).find("\n" + line + "\n") != std::string::npos;
}

TEST(tsv_format, begins_with_a_header) {
  Utf8Text out;
  makeTsvFormat()->begin(out);
  EXPECT_EQ(out, "infinitive\tslot\tmood\ttense\tperson\tpronoun\tform\tphrase\n");
}

TEST(tsv_format, has_a_line_a_slot) {
  const Utf8Text tsv = tsvOf("aimer");
  EXPECT_EQ(std::count(tsv.begin(), tsv.end(), '\n'), 101);
  EXPECT_TRUE(hasLine(tsv, "aimer\t0\tIndicatif\tprésent\tje\tj'\taime\tj'aime"));
  EXPECT_TRUE(
      hasLine(tsv, "aimer\t27\tIndicatif\tpassé composé\tnous\tns\tavons aimé\tnous avons aimé"));
  EXPECT_TRUE(hasLine(tsv, "aimer\t91\tImpératif\tprésent\tnous\t\taimons\taimons"));
  EXPECT_TRUE(hasLine(tsv, "aimer\t100\tParticipe\tpassé composé\t\t\tayant aimé\tayant aimé"));
}

TEST(tsv_format, every_line_has_eight_fields) {
  const Utf8Text tsv = tsvOf("a\tb");
  EXPECT_TRUE(tsv.empty());
  const Utf8Text verb = tsvOf("par\x01ler");
  EXPECT_EQ(std::count(verb.begin(), verb.end(), '\t'), 7 * 101);
}

TEST(tsv_format, a_missing_form_is_an_empty_field) {
  EXPECT_TRUE(hasLine(tsvOf("falloir"), "falloir\t0\tIndicatif\tprésent\tje\tje\t\t"));
}

TEST(tsv_format, a_line_end_inside_an_infinitive_breaks_no_line) {
  const Utf8Text tsv = tsvOf("par\nler");
  EXPECT_EQ(std::count(tsv.begin(), tsv.end(), '\n'), 101);
  EXPECT_TRUE(tsv.starts_with("par\\x0Aler\t0\t"));
}

TEST(tsv_format, a_refused_verb_has_no_lines) { EXPECT_EQ(tsvOf("x"), ""); }

}  // namespace
}  // namespace odmiennik::formats
