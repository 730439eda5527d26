// SPDX-License-Identifier: GPL-3.0-or-later
// The command line.
#include "cli/options.h"

#include <gtest/gtest.h>

#include <fstream>
#include <regex>

#include "cli/help.h"
#include "engine/flags.h"
#include "formats/page.h"

namespace odmiennik::cli {
namespace {

// The arguments outlive the views that parsing returns.
class options : public testing::Test {
 protected:
  const Options& parse(std::vector<Utf8Text> arguments) {
    arguments_ = std::move(arguments);
    parsed_ = parseOptions(arguments_);
    return parsed_.options;
  }
  Utf8Text errorOf(std::vector<Utf8Text> arguments) {
    parse(std::move(arguments));
    return parsed_.error;
  }

  std::vector<Utf8Text> arguments_;
  ParsedOptions parsed_;
};

using Verbs = std::vector<Utf8View>;

TEST_F(options, without_arguments_ask_for_text_from_standard_input) {
  EXPECT_EQ(parse({}).query, nullptr);
  EXPECT_EQ(parse({}).format->name, "text");
  EXPECT_TRUE(parse({}).infinitives.empty());
}

TEST_F(options, may_stand_between_the_infinitives) {
  EXPECT_EQ(parse({"aller", "--format", "json", "venir"}).infinitives, (Verbs{"aller", "venir"}));
  EXPECT_EQ(parsed_.options.format->name, "json");
}

TEST_F(options, take_their_value_behind_an_equals_sign_too) {
  EXPECT_EQ(parse({"--format=tsv"}).format->name, "tsv");
  EXPECT_EQ(parse({"--folder=/a=b"}).folder, "/a=b");
}

TEST_F(options, ask_for_the_norm_or_for_the_departures_from_it) {
  EXPECT_TRUE(parse({"--norm", "lire"}).isInNorm);
  EXPECT_TRUE(parse({"--departures", "lire"}).listsDepartures);
  EXPECT_FALSE(parse({"lire"}).isInNorm || parse({"lire"}).listsDepartures);
}

TEST_F(options, that_exclude_each_other_are_named) {
  EXPECT_EQ(errorOf({"--edit", "--norm"}), "opcja „--norm” nie łączy się z „--edit”.");
  EXPECT_EQ(errorOf({"--norm", "--edit"}), "opcja „--edit” nie łączy się z „--norm”.");
  EXPECT_EQ(errorOf({"--departures", "aller", "--format=json"}),
            "opcja „--format” nie łączy się z „--departures”.");
  EXPECT_EQ(errorOf({"--auxiliary", "etre", "--find"}),
            "opcja „--find” nie łączy się z „--auxiliary”.");
}

TEST_F(options, of_which_there_can_be_one_exclude_each_other) {
  const std::vector<std::vector<Utf8Text>> tasks = {
      {"--edit"},      {"--norm"},          {"--departures"},  {"--find"},   {"--slots"},
      {"--list", "a"}, {"--complete", "a"}, {"--record", "a"}, {"--strings"}};
  for (const auto& one : tasks)
    for (const auto& other : tasks) {
      std::vector<Utf8Text> both = one;
      both.insert(both.end(), other.begin(), other.end());
      EXPECT_EQ(errorOf(both).empty(), one == other) << one[0] << other[0];
    }
}

TEST_F(options, of_a_conjugation_are_refused_where_there_is_none) {
  for (const Utf8Text query : {"--list", "--complete", "--record"}) {
    EXPECT_NE(errorOf({query, "a", "--format", "tsv"}), "") << query;
    EXPECT_NE(errorOf({"--auxiliary", "etre", query, "a"}), "") << query;
    EXPECT_NE(errorOf({query, "a", "--persons", "je"}), "") << query;
    EXPECT_EQ(errorOf({"--color", "always", query, "a", "--folder", "f"}), "") << query;
  }
}

TEST_F(options, name_several_tenses_and_persons_with_commas) {
  EXPECT_EQ(parse({"--tenses", "imparfait, subjonctif présent"}).tenses.count(), 2U);
  EXPECT_EQ(parse({"--tenses=indicatif", "--tenses", "infinitif"}).tenses.count(), 10U);
  EXPECT_EQ(parse({"--persons", "nous,vous"}).persons, Persons(0b011000));
  EXPECT_TRUE(parse({}).tenses.none() && parse({}).persons.none());
}

TEST_F(options, tell_which_tenses_and_persons_there_are) {
  const Utf8Text error = errorOf({"--tenses", "présent,imparfit"});
  EXPECT_TRUE(error.starts_with(
      "niewłaściwa wartość „imparfit” opcji „--tenses”; możliwe: présent, imparfait, "));
  EXPECT_TRUE(error.ends_with(", participe."));
  EXPECT_EQ(errorOf({"--persons", "nous,"}),
            "niewłaściwa wartość „” opcji „--persons”; możliwe: je, tu, il, nous, vous, ils.");
}

TEST_F(options, that_leave_no_form_are_refused) {
  EXPECT_EQ(errorOf({"--tenses", "impératif", "--persons", "je,il"}),
            "żaden z wybranych czasów nie ma wybranych osób.");
}

TEST_F(options, of_any_task_go_with_help) {
  EXPECT_EQ(errorOf({"--find", "--format", "tsv", "--help"}), "");
  EXPECT_NE(parsed_.options.query, nullptr);
}

TEST_F(options, behind_two_dashes_everything_is_an_infinitive) {
  EXPECT_EQ(parse({"--", "--help", "--"}).infinitives, (Verbs{"--help", "--"}));
}

TEST_F(options, a_single_dash_and_an_empty_argument_are_infinitives) {
  EXPECT_EQ(parse({"-", ""}).infinitives, (Verbs{"-", ""}));
}

TEST_F(options, name_the_auxiliary_with_or_without_its_circumflex) {
  EXPECT_EQ(parse({"--auxiliary", "avoir"}).auxiliary, engine::kAvoir);
  EXPECT_EQ(parse({"--auxiliary", "etre"}).auxiliary, engine::kEtre);
  EXPECT_EQ(parse({"--auxiliary", "être"}).auxiliary, engine::kEtre);
}

TEST_F(options, unknown_ones_are_named_in_the_error) {
  EXPECT_EQ(errorOf({"--nowa"}), "nieznana opcja „--nowa”.");
}

TEST_F(options, a_missing_value_is_an_error) {
  EXPECT_EQ(errorOf({"aller", "--folder"}), "opcja „--folder” wymaga wartości.");
}

TEST_F(options, a_value_for_an_option_without_one_is_an_error) {
  EXPECT_EQ(errorOf({"--edit=tak"}), "opcja „--edit” nie przyjmuje wartości.");
}

TEST_F(options, a_value_outside_its_list_is_an_error) {
  EXPECT_EQ(errorOf({"--format", "xml"}), "niewłaściwa wartość „xml” opcji „--format”.");
  EXPECT_NE(errorOf({"--auxiliary", "aller"}), "");
  EXPECT_NE(errorOf({"--folder", ""}), "");
}

TEST_F(options, two_tasks_do_not_go_together) {
  EXPECT_EQ(errorOf({"--list", "a", "--record", "aller"}),
            "opcja „--record” nie łączy się z poprzednimi.");
}

TEST_F(options, a_task_takes_no_infinitives) {
  EXPECT_EQ(errorOf({"--strings", "aller"}), "nadmiarowy argument „aller”.");
}

TEST_F(options, every_format_of_the_table_is_known) {
  for (const formats::FormatRow& row : formats::kFormats)
    EXPECT_EQ(parse({"--format", Utf8Text(row.name)}).format, &row) << row.name;
}

TEST_F(options, help_names_every_option_and_fits_the_page) {
  Utf8Text help;
  appendHelp(help, {});
  for (const OptionRow& row : optionRows())
    EXPECT_NE(help.find("\n  " + Utf8Text(row.name) + " "), std::string::npos) << row.name;
  EXPECT_NE(help.find("--format text|tsv|json|csv|markdown|html|anki\n"), std::string::npos);
  for (std::size_t start = 0; start < help.size();) {
    const std::size_t end = help.find('\n', start);
    EXPECT_LE(formats::letterCount(Utf8View(help).substr(start, end - start)), 80U);
    start = end + 1;
  }
}

// An option of the manual page as a line of --help: `.BR \-\-format " " text | tsv` is
// "--format text|tsv".
Utf8Text plain(const std::string& line) {
  std::string text =
      std::regex_replace(line.substr(line.find(' ') + 1), std::regex(R"([\\"])"), "");
  text = std::regex_replace(text, std::regex(R"( *\| *)"), "|");
  return Utf8Text(asUtf8(std::regex_replace(text, std::regex(" +"), " ")));
}

TEST_F(options, are_those_of_the_manual_page_in_its_order) {
  std::ifstream page(ODMIENNIK_SOURCE_DIR "/docs/odmien.1");
  std::vector<Utf8Text> described;
  std::string before;
  for (std::string line; std::getline(page, line); before = line)
    if (before == ".TP" && line.find(" \\-\\-") != std::string::npos)
      described.push_back(plain(line));
  std::vector<Utf8Text> known;
  for (const OptionRow& row : optionRows())
    known.push_back(Utf8Text(row.name) + (row.valueName.empty() ? "" : " ") +
                    Utf8Text(row.valueName));
  EXPECT_EQ(described, known);
}

// Values have names of its own language there.
TEST_F(options, are_those_of_the_english_manual_page_in_its_order) {
  std::ifstream page(ODMIENNIK_SOURCE_DIR "/docs/odmien.en.1");
  std::vector<Utf8Text> described;
  std::string before;
  for (std::string line; std::getline(page, line); before = line) {
    if (before != ".TP" || line.find(" \\-\\-") == std::string::npos) continue;
    const Utf8Text option = plain(line);
    described.push_back(option.substr(0, option.find(' ')));
  }
  std::vector<Utf8Text> known;
  for (const OptionRow& row : optionRows()) known.push_back(Utf8Text(row.name));
  EXPECT_EQ(described, known);
}

}  // namespace
}  // namespace odmiennik::cli
