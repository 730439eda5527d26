// SPDX-License-Identifier: GPL-3.0-or-later
// The order in which the system's information tool is looked for.
#include "app/logic/system_information.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <vector>

namespace odmiennik::app {
namespace {

constexpr const char* kToolKey = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
constexpr const char* kFolderKey = "SOFTWARE\\Microsoft\\Shared Tools Location";

// Holds values under "key|value", and the files that exist.
struct System final : Registry {
  std::optional<std::string> localMachineText(std::string_view key,
                                              std::string_view value) override {
    const auto found = values.find(std::string(key) + '|' + std::string(value));
    return found == values.end() ? std::nullopt : std::optional(found->second);
  }
  std::optional<std::string> tool() {
    return systemInformationTool(*this, [this](const std::string& path) {
      asked.push_back(path);
      return files.contains(path);
    });
  }
  std::map<std::string, std::string> values;
  std::set<std::string> files;
  std::vector<std::string> asked;
};

TEST(system_information, takes_the_registered_path_as_it_is) {
  System system;
  system.values[std::string(kToolKey) + "|PATH"] = "C:\\Tools\\msinfo32.exe";
  system.values[std::string(kFolderKey) + "|MSINFO"] = "C:\\Other";
  system.files = {"C:\\Other\\MSINFO32.EXE"};
  EXPECT_EQ(system.tool(), "C:\\Tools\\msinfo32.exe");
  EXPECT_TRUE(system.asked.empty());
}

TEST(system_information, else_takes_the_tool_in_the_registered_folder) {
  System system;
  system.values[std::string(kFolderKey) + "|MSINFO"] = "C:\\Other";
  system.files = {"C:\\Other\\MSINFO32.EXE"};
  EXPECT_EQ(system.tool(), "C:\\Other\\MSINFO32.EXE");
}

TEST(system_information, finds_nothing_in_a_folder_without_the_tool) {
  System system;
  system.values[std::string(kFolderKey) + "|MSINFO"] = "C:\\Other";
  EXPECT_FALSE(system.tool());
  EXPECT_EQ(system.asked, std::vector<std::string>{"C:\\Other\\MSINFO32.EXE"});
}

TEST(system_information, finds_nothing_where_nothing_is_registered) {
  System system;
  EXPECT_FALSE(system.tool());
  EXPECT_TRUE(system.asked.empty());
}

TEST(system_information, a_text_loses_one_terminating_nul) {
  using namespace std::string_view_literals;
  EXPECT_EQ(withoutTerminatingNul("C:\\Tools\0"sv), "C:\\Tools");
  EXPECT_EQ(withoutTerminatingNul("C:\\Tools"), "C:\\Tools");
  EXPECT_EQ(withoutTerminatingNul(""), "");
}

}  // namespace
}  // namespace odmiennik::app
