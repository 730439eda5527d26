// SPDX-License-Identifier: GPL-3.0-or-later
// Which folder is the program's.
#include "disk/program_folder.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <unistd.h>
#endif

#include <cstdlib>

#include "tests/support/scratch_folder.h"

namespace odmiennik::dictionary {
namespace {

namespace fs = std::filesystem;

class program_folder : public testing::Test {
 protected:
  program_folder() { fs::create_directories(root_ / "bin"); }

  scratch::ScratchFolder scratch_;
  fs::path root_ = scratch_.path();
};

TEST_F(program_folder, is_the_executables_own) {
  EXPECT_EQ(disk::programFolder(root_ / "bin" / "odmien", "/data"), root_ / "bin");
}

TEST_F(program_folder, of_an_installation_is_the_users) {
  fs::create_directories(root_ / "share" / "odmiennik");
  EXPECT_EQ(disk::programFolder(root_ / "bin" / "odmien", "/data"), "/data");
}

TEST_F(program_folder, of_an_installation_is_in_bin_only) {
  fs::create_directories(root_ / "share" / "odmiennik");
  fs::create_directories(root_ / "build");
  EXPECT_EQ(disk::programFolder(root_ / "build" / "odmien", "/data"), root_ / "build");
}

TEST_F(program_folder, of_a_user_without_a_home_is_the_executables_own) {
  fs::create_directories(root_ / "share" / "odmiennik");
  EXPECT_EQ(disk::programFolder(root_ / "bin" / "odmien", {}), root_ / "bin");
}

TEST_F(program_folder, of_a_folder_that_cannot_be_looked_at_is_the_executables_own) {
  EXPECT_EQ(disk::programFolder(root_ / "gone" / "odmien", "/data"), root_ / "gone");
}

#ifndef _WIN32

// Nobody in particular for as long as it lives: to the superuser, permissions mean nothing.
class OrdinaryUser {
 public:
  OrdinaryUser() : isSuperuser_(::geteuid() == 0) { become(kNobody); }
  ~OrdinaryUser() { become(0); }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
  static constexpr uid_t kNobody = 65534;
  void become(uid_t user) const {
    if (!isSuperuser_) return;
    EXPECT_EQ(::seteuid(user), 0);
  }

  bool isSuperuser_;
};

TEST_F(program_folder, that_the_user_may_not_write_is_the_users) {
  const fs::path executable = root_ / "bin" / "odmien";
  fs::permissions(root_, fs::perms(0777));
  fs::permissions(root_ / "bin", fs::perms(0777));
  const auto found = [&](const fs::path& userData) {
    const OrdinaryUser user;
    return disk::programFolder(executable, userData);
  };
  EXPECT_EQ(found("/data"), root_ / "bin");
  fs::permissions(root_ / "bin", fs::perms(0555));
  EXPECT_EQ(found("/data"), "/data");
  EXPECT_EQ(found({}), root_ / "bin");
  fs::permissions(root_ / "bin", fs::perms(0755));
}

#endif

TEST(without_trailing_separators, drops_all_of_them_and_blanks) {
  EXPECT_EQ(disk::withoutTrailingSeparators("/home/ala//"), "/home/ala");
  EXPECT_EQ(disk::withoutTrailingSeparators("C:\\verbs\\"), "C:\\verbs");
  EXPECT_EQ(disk::withoutTrailingSeparators("/home/ala/ "), "/home/ala");
  EXPECT_EQ(disk::withoutTrailingSeparators("/"), "");
  EXPECT_EQ(disk::withoutTrailingSeparators(" a"), " a");
}

TEST(executable_path, is_this_test) {
  EXPECT_TRUE(fs::exists(disk::executablePath()));
  EXPECT_EQ(disk::executablePath().stem(), "cli_test");
}

#ifndef _WIN32
TEST(user_data_folder, follows_the_desktops_convention) {
  ::setenv("HOME", "/home/ala", 1);
  ::setenv("XDG_DATA_HOME", "/data", 1);
  EXPECT_EQ(disk::userDataFolder(), "/data/odmiennik");
  ::setenv("XDG_DATA_HOME", "relative", 1);
  EXPECT_EQ(disk::userDataFolder(), "/home/ala/.local/share/odmiennik");
  ::unsetenv("XDG_DATA_HOME");
  EXPECT_EQ(disk::userDataFolder(), "/home/ala/.local/share/odmiennik");
  ::unsetenv("HOME");
  EXPECT_EQ(disk::userDataFolder(), "");
}
#endif

}  // namespace
}  // namespace odmiennik::dictionary
