// SPDX-License-Identifier: GPL-3.0-or-later
// The program folder: the user's verbs and their count are read, nothing is ever written.
#include <gtest/gtest.h>

#include "process.h"
#include "verb_folder.h"

namespace odmiennik::end_to_end {
namespace {

namespace fs = std::filesystem;

class folder : public testing::Test {
 protected:
  Result answer(const Arguments& verbs) {
    Arguments arguments{"--folder", folder_.path(), "--format", "json"};
    arguments.insert(arguments.end(), verbs.begin(), verbs.end());
    return run(arguments);
  }

  VerbFolder folder_;
};

TEST_F(folder, a_user_verb_wins_over_the_built_in_one) {
  folder_.writeCount(1);
  folder_.write("Czasowniki.dat", record("avoir", 0));
  const Result result = answer({"avoir"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_TRUE(holds(result.out, "\"slots\":[\"avoir0\",\"avoir1\","));
  EXPECT_TRUE(holds(result.out, "\"source\":\"user\""));
  EXPECT_TRUE(holds(result.out, "\"aux_checked\":false,\"aux_enabled\":true,"));
}

TEST_F(folder, a_count_smaller_than_the_file_hides_the_rest) {
  folder_.writeCount(1);
  folder_.write("Czasowniki.dat", record("avoir", 1) + record("parler", 1));
  EXPECT_TRUE(holds(answer({"avoir"}).out, "\"source\":\"user\""));
  EXPECT_TRUE(holds(answer({"parler"}).out, "\"source\":\"rule\""));
}

TEST_F(folder, a_count_larger_than_the_file_is_no_trouble) {
  folder_.writeCount(9);
  folder_.write("Czasowniki.dat", record("avoir", 1) + record("parler", 1));
  const Result result = answer({"parler", "finir"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_TRUE(holds(result.out, "\"slots\":[\"parler0\","));
  EXPECT_TRUE(holds(result.out, "\"slots\":[\"finis\","));
}

TEST_F(folder, without_a_settings_file_there_are_no_user_verbs) {
  folder_.write("Czasowniki.dat", record("parler", 1));
  EXPECT_TRUE(holds(answer({"parler"}).out, "\"source\":\"rule\""));
}

TEST_F(folder, that_does_not_exist_holds_no_verbs) {
  const Result result = run({"--folder", folder_.path() + "/nie ma", "parler"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.err, "");
}

TEST_F(folder, trailing_separators_are_dropped) {
  folder_.writeCount(1);
  folder_.write("Czasowniki.dat", record("parler", 1));
  const Result result = run({"--folder=" + folder_.path() + "//", "--format", "json", "parler"});
  EXPECT_TRUE(holds(result.out, "\"source\":\"user\""));
}

TEST_F(folder, a_damaged_record_gives_three_and_the_verbs_are_answered) {
  folder_.writeCount(2);
  folder_.write("Czasowniki.dat", "a,b,c\r\n" + record("parler", 1));
  const Result result = answer({"parler", "finir", "x"});
  EXPECT_EQ(result.exitCode, 3);
  EXPECT_TRUE(holds(result.err, "Plik czasowników użytkownika jest uszkodzony (czasownik 1).\n"));
  EXPECT_TRUE(holds(result.out, "\"slots\":[\"parler0\","));
  EXPECT_TRUE(holds(result.out, "\"slots\":[\"finis\","));
}

TEST_F(folder, damage_is_told_once_a_run) {
  folder_.writeCount(1);
  folder_.write("Czasowniki.dat", "a,b,c\r\n");
  const Result result = answer({"parler", "finir"});
  EXPECT_EQ(linesOf(result.err).size(), 1U);
}

TEST_F(folder, a_file_of_verbs_that_cannot_be_read_gives_three) {
  folder_.writeCount(1);
  std::filesystem::create_directory(folder_.file("Czasowniki.dat"));
  const Result result = answer({"parler"});
  EXPECT_EQ(result.exitCode, 3);
  EXPECT_TRUE(holds(result.err, "Nie można odczytać pliku czasowników użytkownika."));
  EXPECT_TRUE(holds(result.out, "\"slots\":[\"parle\","));
}

TEST_F(folder, a_damaged_settings_file_gives_three_and_what_it_holds_counts) {
  folder_.write("Werbolin.cfg", "1\r\nx\r\n");
  folder_.write("Czasowniki.dat", record("parler", 1));
  const Result result = answer({"parler"});
  EXPECT_EQ(result.exitCode, 3);
  EXPECT_TRUE(holds(result.err,
                    "Wystąpił błąd podczas odczytywania pliku konfiguracyjnego. Program może "
                    "działać niepoprawnie."));
  EXPECT_TRUE(holds(result.out, "\"source\":\"user\""));
}

TEST_F(folder, nothing_is_ever_written) {
  folder_.writeCount(2);
  folder_.write("Czasowniki.dat", "a,b\r\n" + record("parler", 1));
  folder_.write("Czas.dat", record("aller", 0));
  const auto before = folder_.contents();
  static_cast<void>(answer({"parler", "resetuj", "x", "nowy"}));
  static_cast<void>(answer({"--edit", "--auxiliary", "etre", "parler"}));
  EXPECT_EQ(folder_.contents(), before);
}

TEST_F(folder, an_interrupted_rewrite_is_left_as_it_was) {
  folder_.writeCount(1);
  folder_.write("Czas.dat", record("parler", 1));
  const auto before = folder_.contents();
  EXPECT_TRUE(holds(answer({"parler"}).out, "\"source\":\"rule\""));
  EXPECT_EQ(folder_.contents(), before);
}

TEST_F(folder, that_does_not_exist_is_not_created) {
  const std::string missing = folder_.path() + "/nowy";
  static_cast<void>(run({"--folder", missing, "parler"}));
  EXPECT_FALSE(std::filesystem::exists(missing));
}

// A copy of the command in a folder "bin", and the user's data folder beside it.
class command_of_its_own : public folder {
 protected:
  command_of_its_own() {
    fs::create_directories(folder_.file("bin"));
    fs::copy_file(command(), folder_.file("bin/odmien"));
  }
  ~command_of_its_own() override { setPermissions(0755); }

  void setPermissions(unsigned rights) { fs::permissions(folder_.file("bin"), fs::perms(rights)); }

  // Started with the rights of an ordinary user, also by the superuser.
  Result answer() {
    const Arguments arguments{
        "/bin/sh",
        "-c",
        "[ \"$(id -u)\" != 0 ] || set -- setpriv --bounding-set=-all \"$@\"; exec \"$@\"",
        "sh",
        folder_.file("bin/odmien").string(),
        "--format",
        "json",
        "parler"};
    return run(arguments, {}, {"XDG_DATA_HOME=" + data_.string()});
  }

  bool isCreating() {
    EXPECT_EQ(answer().exitCode, 0);
    return fs::exists(data_);
  }

  bool takesTheUsersVerb() {
    fs::create_directories(data_ / "odmiennik");
    folder_.write("dane/odmiennik/Werbolin.cfg", "1\r\n0\r\n0\r\n0\r\n10\r\n");
    folder_.write("dane/odmiennik/Czasowniki.dat", record("parler", 1));
    return holds(answer().out, "\"source\":\"user\"");
  }

  std::filesystem::path data_ = folder_.file("dane");
};

TEST_F(command_of_its_own, installed_takes_the_users_folder_and_does_not_create_it) {
  fs::create_directories(folder_.file("share/odmiennik"));
  EXPECT_FALSE(isCreating());
  EXPECT_TRUE(takesTheUsersVerb());
}

TEST_F(command_of_its_own, takes_the_folder_that_it_lies_in) {
  EXPECT_FALSE(isCreating());
  EXPECT_FALSE(takesTheUsersVerb());
}

TEST_F(command_of_its_own, where_it_may_not_write_takes_the_users_folder_and_does_not_create_it) {
  setPermissions(0555);
  EXPECT_FALSE(isCreating());
  EXPECT_TRUE(takesTheUsersVerb());
}

}  // namespace
}  // namespace odmiennik::end_to_end
