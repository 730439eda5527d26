// The command line.
#include "cli/options.h"

#include <gtest/gtest.h>

#include "cli/page.h"
#include "engine/flags.h"

namespace odmiennik::cli {
namespace {

// The arguments outlive the views that parsing returns.
class options : public testing::Test {
 protected:
  const Options& parse(std::vector<std::string> arguments) {
    arguments_ = std::move(arguments);
    parsed_ = parseOptions(arguments_);
    return parsed_.options;
  }
  std::string errorOf(std::vector<std::string> arguments) {
    parse(std::move(arguments));
    return parsed_.error;
  }

  std::vector<std::string> arguments_;
  ParsedOptions parsed_;
};

using Verbs = std::vector<std::string_view>;

TEST_F(options, without_arguments_ask_for_text_from_standard_input) {
  EXPECT_EQ(parse({}).task, Task::conjugation);
  EXPECT_EQ(parse({}).format, OutputFormat::text);
  EXPECT_TRUE(parse({}).infinitives.empty());
}

TEST_F(options, may_stand_between_the_infinitives) {
  EXPECT_EQ(parse({"aller", "--format", "json", "venir"}).infinitives, (Verbs{"aller", "venir"}));
  EXPECT_EQ(parsed_.options.format, OutputFormat::json);
}

TEST_F(options, take_their_value_behind_an_equals_sign_too) {
  EXPECT_EQ(parse({"--format=tsv"}).format, OutputFormat::tsv);
  EXPECT_EQ(parse({"--folder=/a=b"}).folder, "/a=b");
}

TEST_F(options, ask_for_the_norm_or_for_the_departures_from_it) {
  EXPECT_TRUE(parse({"--norm", "lire"}).isInNorm);
  EXPECT_TRUE(parse({"--departures", "lire"}).listsDepartures);
  EXPECT_FALSE(parse({"lire"}).isInNorm || parse({"lire"}).listsDepartures);
}

TEST_F(options, of_forms_that_exclude_each_other_are_refused) {
  EXPECT_EQ(errorOf({"--norm", "--edit"}), "opcja „--norm” nie łączy się z „--edit”.");
  EXPECT_EQ(errorOf({"--departures", "--edit"}), "opcja „--departures” nie łączy się z „--edit”.");
  EXPECT_EQ(errorOf({"--norm", "--departures"}), "opcja „--departures” nie łączy się z „--norm”.");
  EXPECT_EQ(errorOf({"--departures", "--format", "json"}),
            "opcja „--departures” nie łączy się z „--format” ani „--auxiliary”.");
  EXPECT_EQ(errorOf({"--departures", "--auxiliary", "etre"}),
            "opcja „--departures” nie łączy się z „--format” ani „--auxiliary”.");
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
  EXPECT_NE(errorOf({"--list", "ab"}), "");
  EXPECT_NE(errorOf({"--list", "1"}), "");
  EXPECT_NE(errorOf({"--folder", ""}), "");
}

TEST_F(options, two_tasks_do_not_go_together) {
  EXPECT_EQ(errorOf({"--list", "a", "--record", "aller"}),
            "opcja „--record” nie łączy się z poprzednimi.");
}

TEST_F(options, a_task_takes_no_infinitives) {
  EXPECT_EQ(errorOf({"--strings", "aller"}), "nadmiarowy argument „aller”.");
}

TEST_F(options, help_names_every_option_and_fits_the_page) {
  const std::string help = helpText();
  for (const char* name : {"--format", "--folder", "--auxiliary", "--edit", "--list", "--complete",
                           "--record", "--strings", "--help", "--version"})
    EXPECT_NE(help.find(name), std::string::npos) << name;
  for (std::size_t start = 0; start < help.size();) {
    const std::size_t end = help.find('\n', start);
    EXPECT_LE(letterCount(std::string_view(help).substr(start, end - start)), 80U);
    start = end + 1;
  }
}

}  // namespace
}  // namespace odmiennik::cli
