// SPDX-License-Identifier: GPL-3.0-or-later
// A release is one version, whoever names it.
#include <gtest/gtest.h>

#include <regex>

#include "tests/lint/source_tree.h"

namespace odmiennik::lint {
namespace {

std::string projectText(const char* path) {
  return contentsOf(std::filesystem::path(ODMIENNIK_SOURCE_DIR) / path);
}

// What the first match of `pattern`, a bracket in it, has found in a file.
std::string firstIn(const char* path, const char* pattern) {
  const std::string text = projectText(path);
  std::smatch found;
  return std::regex_search(text, found, std::regex(pattern)) ? found[1].str() : std::string();
}

const char* const kProjectVersion = R"(project\(Odmiennik VERSION ([0-9.]+))";

TEST(release, the_newest_version_of_the_change_log_is_that_of_the_project) {
  EXPECT_EQ(firstIn("CHANGELOG.md", R"(\n## \[([0-9.]+)\])"),
            firstIn("CMakeLists.txt", kProjectVersion));
}

TEST(release, the_newest_version_of_the_debian_package_is_that_of_the_project) {
  EXPECT_EQ(firstIn("debian/changelog", R"(^odmiennik \(([0-9.]+)\))"),
            firstIn("CMakeLists.txt", kProjectVersion));
}

TEST(release, the_newest_version_that_stores_are_told_of_is_that_of_the_project) {
  EXPECT_EQ(firstIn("packaging/linux/odmiennik.metainfo.xml", "<release version=\"([0-9.]+)\""),
            firstIn("CMakeLists.txt", kProjectVersion));
}

TEST(release, the_readme_offers_the_downloads_of_this_version) {
  const std::string version = firstIn("CMakeLists.txt", kProjectVersion);
  EXPECT_EQ(firstIn("README.md", R"(`Odmiennik-([0-9.]+)\.zip`)"), version);
  EXPECT_EQ(firstIn("README.md", R"(`Odmiennik-([0-9.]+)-instalator\.exe`)"), version);
  EXPECT_EQ(firstIn("README.md", R"(`odmiennik_([0-9.]+)_amd64\.deb`)"), version);
}

TEST(release, stores_and_the_change_log_tell_the_same_day) {
  EXPECT_EQ(firstIn("packaging/linux/odmiennik.metainfo.xml",
                    "<release version=[^>]* date=\"([0-9-]+)\""),
            firstIn("CHANGELOG.md", R"(\n## \[[0-9.]+\] - ([0-9-]+))"));
}

}  // namespace
}  // namespace odmiennik::lint
