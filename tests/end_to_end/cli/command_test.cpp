// SPDX-License-Identifier: GPL-3.0-or-later
// The command as a user meets it: arguments, formats, exit codes, streams.
#include <gtest/gtest.h>

#include <csignal>

#include "process.h"
#include "terminal.h"

namespace odmiennik::end_to_end {
namespace {

TEST(command, conjugates_its_arguments) {
  const Result result = run({"parler", "aller"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_TRUE(holds(result.out, "\nj'ai parlé "));
  EXPECT_TRUE(holds(result.out, "\nje suis allé(e) "));
}

TEST(command, reads_standard_input_without_arguments) {
  const Result result = run({"--format", "json"}, "parler\r\naller");
  EXPECT_EQ(result.exitCode, 0);
  const auto lines = linesOf(result.out);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_TRUE(lines[0].starts_with("{\"typed\":\"parler\",\"slots\":[\"parle\","));
  EXPECT_TRUE(lines[1].starts_with("{\"typed\":\"aller\",\"slots\":[\"vais\","));
}

TEST(command, answers_nothing_with_nothing) {
  const Result result = run({"--format", "json"}, "");
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out + result.err, "");
}

TEST(command, answers_a_waiting_program_line_by_line) {
  Process process({"--format", "json"});
  for (const std::string verb : {"parler", "aller", "x", "finir"}) {
    process.write(verb + "\n");
    EXPECT_TRUE(process.readLine().starts_with("{\"typed\":\"" + verb + "\","));
  }
  process.finish("");
  EXPECT_EQ(process.exitCode(), 1);
}

TEST(command, a_refused_verb_gives_one_and_its_message) {
  const Result result = run({"x", "parler"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.err,
            "odmien: „x”: Podany czasownik nie został znaleziony i nie było możliwe odmienienie "
            "go regularnie.\n");
  EXPECT_TRUE(holds(result.out, "══ parler ═"));
}

TEST(command, a_refused_verb_known_under_another_spelling_is_asked_about) {
  const std::string refused =
      "Podany czasownik nie został znaleziony i nie było możliwe odmienienie go regularnie.\n";
  const std::pair<const char*, const char*> spellings[] = {{"etre", "être"},
                                                           {"connaitre", "connaître"},
                                                           {"paraitre", "paraître"},
                                                           {"s'assoir", "s'asseoir"}};
  for (const auto& [typed, meant] : spellings) {
    const std::string subject = std::string("odmien: „") + typed + "”: ";
    const Result result = run({typed});
    EXPECT_EQ(result.exitCode, 1) << typed;
    EXPECT_EQ(result.err, subject + refused + subject + "Czy chodziło o „" + meant + "”?\n");
  }
}

TEST(command, an_unknown_verb_that_a_rule_conjugates_gives_zero_and_its_message) {
  const Result result = run({"blabler"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.err,
            "odmien: „blabler”: Podany czasownik nie został znaleziony, ale został odmieniony "
            "regularnie.\n");
}

TEST(command, resetuj_gives_one_and_its_message) {
  const Result result = run({"resetuj"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_TRUE(holds(result.err, "Ustawienia zostaną zresetowane, a program zamknięty."));
}

TEST(command, wrong_usage_gives_two_and_says_why) {
  for (const Arguments& arguments :
       {Arguments{"--nowa"}, Arguments{"--format"}, Arguments{"--format", "xml", "parler"},
        Arguments{"--auxiliary", "é"}, Arguments{"--strings", "parler"}}) {
    const Result result = run(arguments);
    EXPECT_EQ(result.exitCode, 2) << arguments[0];
    EXPECT_EQ(result.out, "") << arguments[0];
    EXPECT_TRUE(result.err.starts_with("odmien: ")) << arguments[0];
  }
}

TEST(command, options_have_letters) {
  EXPECT_EQ(run({"-f", "tsv", "parler"}).out, run({"--format", "tsv", "parler"}).out);
  EXPECT_EQ(run({"-ftsv", "parler"}).out, run({"--format", "tsv", "parler"}).out);
  EXPECT_EQ(run({"-h"}).out, run({"--help"}).out);
  EXPECT_EQ(run({"-V"}).out, run({"--version"}).out);
  EXPECT_EQ(run({"-Vh"}).exitCode, 2);
  EXPECT_EQ(run({"-x"}).exitCode, 2);
}

TEST(command, prints_the_tenses_and_persons_that_are_asked_for) {
  EXPECT_EQ(run({"-f", "csv", "--tenses", "imparfait", "--persons", "nous", "manger"}).out,
            "infinitive,slot,mood,tense,person,pronoun,form,phrase\r\n"
            "manger,9,Indicatif,imparfait,nous,ns,mangions,nous mangions\r\n");
  EXPECT_TRUE(holds(run({"--departures", "--persons", "il", "lire"}).out, "\til lir\til lit\n"));
  EXPECT_FALSE(holds(run({"--departures", "--persons", "tu", "lire"}).out, "il lir"));
  EXPECT_EQ(linesOf(run({"--slots"}).out).size(), 102U);
  const Result refused = run({"--tenses", "imparfit", "manger"});
  EXPECT_EQ(refused.exitCode, 2);
  EXPECT_TRUE(holds(refused.err, "możliwe: présent, imparfait, "));
}

TEST(command, a_dash_is_standard_input) {
  const Result all = run({"-f", "tsv", "parler", "-", "haïr"}, "finir\n");
  EXPECT_EQ(all.exitCode, 0);
  EXPECT_EQ(all.out, run({"-f", "tsv", "parler", "finir", "haïr"}).out);
  EXPECT_TRUE(holds(run({"--find", "-"}, "suis\n").out, "suivre"));
}

TEST(command, colours_are_shown_where_they_are_asked_for) {
  EXPECT_TRUE(holds(run({"--color", "always", "parler"}).out, "\x1b["));
  EXPECT_FALSE(holds(run({"--color=never", "parler"}).out, "\x1b["));
  EXPECT_EQ(run({"--color", "auto", "parler"}).out, run({"parler"}).out);
  EXPECT_EQ(run({"--color", "red", "parler"}).exitCode, 2);
}

TEST(command, help_and_version_are_polish_data) {
  EXPECT_TRUE(run({"--help"}).out.starts_with("Użycie: odmien "));
  EXPECT_TRUE(run({"--version"}).out.starts_with("odmien "));
  EXPECT_EQ(run({"--help"}).exitCode, 0);
}

TEST(command, a_record_behind_a_tab_replaces_the_index) {
  const Result result = run({"--format", "tsv"}, "parler\t|1|2|1|1|1\n");
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_TRUE(holds(result.out, "\nparler\t2\tIndicatif\tprésent\til\til\tparle\til parle\n"));
  EXPECT_TRUE(holds(result.out, "\nparler\t0\tIndicatif\tprésent\tje\tje\t\t\n"));
}

TEST(command, an_argument_may_carry_a_record_too) {
  EXPECT_TRUE(holds(run({"parler\t|1|2|1|1|1"}).out, "\nil parle  "));
  EXPECT_FALSE(holds(run({"parler\t|1|2|1|1|1"}).out, "\nje parle"));
}

TEST(command, a_user_may_switch_the_auxiliary) {
  EXPECT_TRUE(holds(run({"--auxiliary", "etre", "parler"}).out, "\nje suis parlé(e) "));
  EXPECT_TRUE(holds(run({"--auxiliary", "avoir", "aller"}).out, "\nj'ai allé "));
}

TEST(command, editing_keeps_placeholders) {
  const Result result = run({"--edit", "--format", "tsv", "pouvoir"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_TRUE(holds(result.out, "\npouvoir\t24\tIndicatif\tpassé composé\tje\tje\t*\tje *\n"));
}

TEST(command, asks_the_index) {
  EXPECT_EQ(run({"--record", "Se Parler"}).out, "|1|1|1|1\n");
  EXPECT_EQ(run({"--complete", "parl"}).out, "parlementer\n");
  EXPECT_EQ(run({"--record", "blabler"}).exitCode, 1);
  EXPECT_EQ(run({"--complete", "qqq"}).exitCode, 1);
  EXPECT_EQ(linesOf(run({"--list", "A"}).out).front(), "abaisser");
  EXPECT_EQ(run({"--list", "etei"}).out, "éteindre\n");
  EXPECT_EQ(linesOf(run({"--list", ""}).out).size(), 7342U);
}

TEST(command, knows_verbs_of_today) {
  for (const char* verb :
       {"googliser",     "ubériser", "spoiler",  "troller",    "hacker",    "slammer",
        "sampler",       "textoter", "swiper",   "streamer",   "ghoster",   "vloguer",
        "reposter",      "genrer",   "mégenrer", "décarboner", "autogérer", "cyberharceler",
        "déradicaliser", "googler",  "viraliser"})
    EXPECT_EQ(run({"--record", verb}).exitCode, 0) << verb;
}

TEST(command, prints_the_string_table) {
  const Result result = run({"--strings"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_TRUE(result.out.starts_with("1\tme \n2\tte \n"));
  EXPECT_TRUE(holds(result.out, "\n3000\t84\n"));
}

TEST(command, a_full_disk_gives_three_and_is_said) {
  const Result result = runInShell({"parler"}, ">/dev/full");
  EXPECT_EQ(result.exitCode, 3);
  EXPECT_EQ(result.err, "odmien: nie można zapisać wyniku: brak miejsca albo błąd zapisu.\n");
}

TEST(command, a_closed_standard_output_gives_three_and_is_said) {
  const Result result = runInShell({"parler"}, ">&-");
  EXPECT_EQ(result.exitCode, 3);
  EXPECT_TRUE(holds(result.err, "nie można zapisać wyniku"));
}

TEST(command, a_reader_who_goes_away_ends_it_quietly) {
  Process process({"--format", "json"});
  process.closeOutput();
  std::string verbs;
  for (int i = 0; i < 1000; ++i) verbs += "parler\n";
  process.finish(verbs);
  EXPECT_EQ(process.endedBySignal(), SIGPIPE);
  EXPECT_EQ(process.err(), "");
}

TEST(command, where_that_signal_is_not_wanted_a_closed_pipe_gives_three_quietly) {
  Process process({"/bin/sh", "-c", "trap '' PIPE; exec \"$0\" --list ''", command()});
  process.closeOutput();
  process.finish("");
  EXPECT_EQ(process.exitCode(), 3);
  EXPECT_EQ(process.err(), "");
}

TEST(command, passes_blank_lines_over_but_in_json) {
  for (const char* format : {"text", "tsv", "csv", "markdown", "html", "anki"}) {
    const Result result = run({"-f", format}, "\n parler\n \t \n\nfinir\n");
    EXPECT_EQ(result.out, run({"-f", format}, "parler\nfinir\n").out) << format;
    EXPECT_EQ(result.err, "") << format;
    EXPECT_EQ(result.exitCode, 0) << format;
  }
  EXPECT_EQ(linesOf(run({"-f", "json"}, "\nparler\n\n").out).size(), 3U);
}

TEST(command, an_empty_argument_is_refused_in_every_format) {
  EXPECT_EQ(run({""}).exitCode, 1);
  EXPECT_TRUE(holds(run({"-f", "tsv", " "}).err, "Podany czasownik nie został znaleziony"));
}

TEST(command, a_message_names_the_line_of_input_that_it_is_about) {
  const Result result = run({"-f", "tsv"}, "parler\n\nx\nłapać\netre\n");
  const std::string refused =
      "Podany czasownik nie został znaleziony i nie było możliwe odmienienie go regularnie.\n";
  EXPECT_EQ(result.err, "odmien: wiersz 3: „x”: " + refused +
                            "odmien: wiersz 4: znaku „ł” (U+0142) nie ma w zestawie "
                            "Windows-1252.\nodmien: wiersz 5: „etre”: " +
                            refused + "odmien: wiersz 5: „etre”: Czy chodziło o „être”?\n");
}

TEST(command, several_words_that_are_one_verb_to_it_are_warned_of) {
  const std::string warning =
      "Odstęp nie rozdziela czasowników. Podaj każdy w osobnym wierszu albo argumencie.\n";
  EXPECT_TRUE(holds(run({"parler finir"}).err, "odmien: „parler finir”: " + warning));
  EXPECT_TRUE(
      holds(run({}, "se laver finir\n").err, "odmien: wiersz 1: „se laver finir”: " + warning));
  for (const char* verb : {" parler ", "se laver", "s'en aller", "s'y connaître", "  Se  Laver"})
    EXPECT_FALSE(holds(run({verb}).err, warning)) << verb;
}

TEST(command, a_standard_input_that_cannot_be_read_gives_three) {
  const Result result = runInShell({}, "</");
  EXPECT_EQ(result.exitCode, 3);
  EXPECT_EQ(result.err, "odmien: nie można czytać standardowego wejścia.\n");
}

TEST(command, colours_stay_away_from_pipes) {
  EXPECT_FALSE(holds(run({"parler"}, {}, {"TERM=xterm", "NO_COLOR="}).out, "\x1b"));
}

TEST(command, colours_show_on_a_terminal) {
  EXPECT_TRUE(holds(runOnTerminal({"parler"}, {"TERM=xterm", "NO_COLOR="}), "\x1b[1;34m"));
}

TEST(command, no_color_and_a_dumb_terminal_switch_colours_off) {
  for (const Arguments& environment :
       {Arguments{"TERM=xterm", "NO_COLOR=1"}, Arguments{"TERM=dumb", "NO_COLOR="}}) {
    const std::string shown = runOnTerminal({"parler"}, environment);
    EXPECT_FALSE(holds(shown, "\x1b"));
    EXPECT_TRUE(holds(shown, "je parle "));
  }
}

TEST(command, on_a_terminal_it_says_what_it_waits_for) {
  const std::string end = ", po jednym w wierszu (koniec: Ctrl+D).\r\n";
  EXPECT_TRUE(
      holds(runOnTerminal({"-f", "tsv"}, {}, "\x04"), "odmien: czekam na czasowniki" + end));
  EXPECT_TRUE(holds(runOnTerminal({"--find", "-"}, {}, "\x04"), "odmien: czekam na formy" + end));
  EXPECT_TRUE(holds(runOnTerminal({}, {"NO_COLOR=1"}, "aller\n\x04"), "je vais "));
  EXPECT_FALSE(holds(runOnTerminal({"parler"}, {}), "czekam"));
}

TEST(command, on_a_terminal_a_message_stands_behind_the_verbs_before_it) {
  const std::string shown = runOnTerminal({"parler", "x", "aller"}, {"NO_COLOR=1"});
  EXPECT_LT(shown.find("══ parler"), shown.find("odmien: „x”"));
  EXPECT_LT(shown.find("odmien: „x”"), shown.find("══ aller"));
}

}  // namespace
}  // namespace odmiennik::end_to_end
