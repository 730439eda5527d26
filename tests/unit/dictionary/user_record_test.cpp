// SPDX-License-Identifier: GPL-3.0-or-later
// One record: free-form fields, the flag, the writer's format.
#include "dictionary/user_record.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "disk/fields.h"
#include "tests/support/test_program.h"
#include "tests/unit/dictionary/program_files.h"

namespace odmiennik::dictionary {
namespace {

using odmiennik::testing::french;
using odmiennik::testing::lineOf;
using odmiennik::testing::verb;
using Fields = std::vector<std::string>;

Fields fieldsOf(std::string_view line) {
  disk::FieldScanner scanner(line);
  Fields fields;
  for (std::string_view field; scanner.next(field);) fields.emplace_back(field);
  return fields;
}

std::string commas(int count) { return std::string(static_cast<std::size_t>(count), ','); }

TEST(fields, end_at_a_comma_or_at_the_lines_end) {
  EXPECT_EQ(fieldsOf("a,b,,c"), (Fields{"a", "b", "", "c"}));
  EXPECT_EQ(fieldsOf("a,"), (Fields{"a", ""}));
  EXPECT_EQ(fieldsOf(""), Fields{""});
}

TEST(fields, lose_the_blanks_around_them) {
  EXPECT_EQ(fieldsOf("  a b , c  ,   "), (Fields{"a b", "c", ""}));
}

TEST(fields, keep_a_tabulator) { EXPECT_EQ(fieldsOf("\ta\t"), Fields{"\ta\t"}); }

TEST(fields, a_quoted_field_ends_at_its_closing_quote) {
  EXPECT_EQ(fieldsOf(R"( " a, b " ,c)"), (Fields{" a, b ", "c"}));
  EXPECT_EQ(fieldsOf(R"("a"b,c)"), (Fields{"a", "b", "c"}));
  EXPECT_EQ(fieldsOf(R"(a,"")"), (Fields{"a", ""}));
  EXPECT_EQ(fieldsOf(R"("a",)"), (Fields{"a", ""}));
}

TEST(fields, a_quoted_field_without_closing_quote_ends_with_the_line) {
  EXPECT_EQ(fieldsOf(R"(a,"b,c )"), (Fields{"a", "b,c "}));
  EXPECT_EQ(fieldsOf(R"(a,")"), (Fields{"a", ""}));
}

TEST(fields, a_quote_inside_a_field_is_a_letter) {
  EXPECT_EQ(fieldsOf(R"(a"b,c")"), (Fields{"a\"b", "c\""}));
}

TEST(flag, is_a_whole_number_of_one_byte) {
  for (const char* one : {"1", " 1 ", "+1", "01", "1.0", "1."}) EXPECT_EQ(parseFlag(one), 1) << one;
  for (const char* zero : {"0", "-0", "00", "0.00"}) EXPECT_EQ(parseFlag(zero), 0) << zero;
  EXPECT_EQ(parseFlag("255"), 255);
}

TEST(flag, anything_else_is_none) {
  for (const char* text : {"", " ", "-", "+", ".", "-1", "256", "99999999999999999999", "0.5",
                           "1e0", "1 0", "0x1", "&H1", "avoir", "1.0.0", "+-1", "1\t", "--0"})
    EXPECT_EQ(parseFlag(text), std::nullopt) << text;
}

TEST(flag, any_number_but_zero_is_avoir) {
  EXPECT_EQ(auxiliaryOf(0), engine::kEtre);
  EXPECT_EQ(auxiliaryOf(1), engine::kAvoir);
  EXPECT_EQ(auxiliaryOf(7), engine::kAvoir);
}

TEST(record, has_the_infinitive_in_its_ninety_seventh_field_and_the_flag_in_its_last) {
  const std::string line = commas(96) + " aimer " + commas(5) + " 0";
  const auto outline = outlineOf(line);
  ASSERT_TRUE(outline);
  EXPECT_EQ(outline->infinitive, "aimer");
  EXPECT_EQ(outline->flag, 0);
}

TEST(record, may_have_further_fields_before_the_flag) {
  const std::string line = commas(96) + "aimer" + commas(9) + "1";
  const auto outline = outlineOf(line);
  ASSERT_TRUE(outline);
  EXPECT_EQ(outline->infinitive, "aimer");
  EXPECT_EQ(outline->flag, 1);
}

TEST(record, with_fewer_than_102_fields_is_damaged) {
  EXPECT_FALSE(outlineOf(commas(96) + "aimer" + commas(4) + " 1"));
  EXPECT_FALSE(outlineOf("\"a\"" + commas(96) + "aimer" + commas(4) + " 1"));
  EXPECT_TRUE(outlineOf("\"a\"" + commas(96) + "aimer" + commas(5) + " 1"));
  EXPECT_FALSE(outlineOf(""));
}

TEST(record, cannot_be_read_back_where_a_form_begins_with_a_quote) {
  UserVerbRecord record;
  record.forms[96] = "aimer";
  EXPECT_EQ(quotedForm(record), std::nullopt);
  record.forms[7] = "aim\"ais, b\"";
  EXPECT_EQ(quotedForm(record), std::nullopt);
  record.forms[100] = "\"";
  EXPECT_EQ(quotedForm(record), 100);
  record.forms[7] = "  \"aimais";
  EXPECT_EQ(quotedForm(record), 7);
}

TEST(record, cannot_be_read_back_where_a_quote_stands_behind_a_comma) {
  UserVerbRecord record;
  record.forms[7] = "aimais, \"b";
  EXPECT_EQ(quotedForm(record), 7);
}

// It would be read, but without its quotes.
TEST(record, does_not_read_back_as_written_where_a_form_is_quoted_altogether) {
  UserVerbRecord record;
  record.forms[7] = "\"aimais\"";
  EXPECT_EQ(quotedForm(record), 7);
}

TEST(record, without_flag_is_damaged) { EXPECT_FALSE(outlineOf(commas(96) + "aimer" + commas(5))); }

// A line without quotes is read another way, since nearly all lines are: with the same result.
TEST(record, of_a_line_without_quotes_is_cut_like_any_other) {
  std::minstd_rand random(1);
  int readable = 0;
  for (int round = 0; round < 2000; ++round) {
    std::string line;
    const int length = 200 + static_cast<int>(random() % 60);
    for (int i = 0; i < length; ++i) line += "  ,,a,1,"[random() % 8];
    const Fields fields = fieldsOf(line);
    const auto flag = fields.size() < 102 ? std::nullopt : parseFlag(fields.back());
    const auto outline = outlineOf(line);
    ASSERT_EQ(outline.has_value(), flag.has_value()) << line;
    if (!outline) continue;
    ++readable;
    EXPECT_EQ(outline->infinitive, fields[96]) << line;
    EXPECT_EQ(outline->flag, *flag) << line;
  }
  EXPECT_GT(readable, 100);
}

TEST(record, is_written_trimmed_unquoted_with_a_comma_behind_every_form) {
  const std::string line = lineOf("  aimer ", {{0, " aime "}, {100, "ayant aimé"}});
  EXPECT_EQ(line, "aime" + commas(96) + "aimer" + commas(4) + french("ayant aimé") + ", 1\r\n");
}

TEST(record, of_a_verb_with_etre_has_the_flag_zero) {
  UserVerbRecord record = verb("aller");
  record.auxiliary = engine::kEtre;
  EXPECT_TRUE(recordLine(record).ends_with(", 0\r\n"));
}

TEST(record, a_line_break_in_a_form_becomes_a_blank) {
  EXPECT_TRUE(lineOf("aimer", {{0, "a\r\nb"}}).starts_with("a  b,"));
}

TEST(record, reads_back_as_written) {
  const UserVerbRecord written = verb("être", {{0, "suis"}, {5, "l'\"a\""}, {100, "ayant été"}});
  engine::FormTable forms;
  forms[1] = "left over";
  readForms(recordLine(written), forms);
  for (int slot = 0; slot < engine::kSlotCount; ++slot)
    EXPECT_EQ(forms[slot], written.forms[slot]) << slot;
}

TEST(record, a_form_with_a_comma_comes_back_split) {
  engine::FormTable forms;
  std::string line = lineOf("devoir", {{99, "dû, due"}, {100, "ayant dû"}});
  line.resize(line.size() - 2);
  readForms(line, forms);
  EXPECT_EQ(forms[99], french("dû"));
  EXPECT_EQ(forms[100], "due");
  EXPECT_EQ(outlineOf(line)->flag, 1);
}

TEST(record, a_copy_is_in_the_writers_format) {
  const std::string line = "\"a\" , b " + commas(95) + " \"aimer\"" + commas(5) + "1";
  EXPECT_EQ(rewrittenLine(line), "a,b" + commas(95) + "aimer" + commas(5) + " 1\r\n");
}

TEST(record, a_copy_keeps_the_fields_that_a_comma_in_a_form_added) {
  const std::string line = lineOf("devoir", {{99, "dû,due"}, {100, "ayant dû"}});
  EXPECT_EQ(rewrittenLine(std::string_view(line).substr(0, line.size() - 2)), line);
}

TEST(record, a_copy_keeps_an_unusual_flag) {
  EXPECT_TRUE(rewrittenLine(commas(101) + "7").ends_with(", 7\r\n"));
}

}  // namespace
}  // namespace odmiennik::dictionary
