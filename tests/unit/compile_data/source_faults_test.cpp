// SPDX-License-Identifier: GPL-3.0-or-later
// Every faulty source that is kept: the build stops and names the file, the line and the reason.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const fs::path kProject = ODMIENNIK_SOURCE_DIR;

// What compile_data is told for a kind of source; "@" is the place of the faulty one.
const std::map<std::string, std::string> kCommands{
    {"tenses", "tenses /dev/null @"},
    {"rule_tenses", "other-groups /dev/null @ data/rules/third_group_dispatch.txt"},
    {"models", "other-groups /dev/null data/tenses.txt data/rules/third_group_dispatch.txt @"},
    {"dispatch", "other-groups /dev/null data/tenses.txt @ data/rules/third_group_models.txt"},
    {"first_dispatch", "first-group /dev/null data/tenses.txt @ data/rules/first_group_models.txt"},
    {"strings", "strings /dev/null data/tenses.txt @ data/tips.txt data/builtin_verbs.txt"},
    {"tips", "strings /dev/null data/tenses.txt data/strings.txt @ data/builtin_verbs.txt"},
    {"builtin", "strings /dev/null data/tenses.txt data/strings.txt data/tips.txt @"},
    {"index", "verb-index /dev/null @"},
    {"norm_strings", "norm-texts /dev/null @ data/norm/lists.txt"},
    {"norm_lists", "norm-texts /dev/null data/norm/strings.txt @"},
    {"norm_verbs", "norm-models /dev/null data/tenses.txt data/norm/models.txt @"},
    {"hints", "hints /dev/null @"},
    {"phrases", "explanations /dev/null @ data/explanations/models.txt"},
    {"explained_models", "explanations /dev/null data/explanations/phrases.txt @"},
    {"messages", "messages /dev/null @"},
    {"window", "window /dev/null data/tenses.txt @"},
};

struct Answer {
  int status = 0;
  std::string text;
};

Answer compile(const std::string& kind, const std::string& source) {
  std::string words = kCommands.at(kind);
  words.replace(words.find('@'), 1, "'" + source + "'");
  const std::string command =
      "cd '" + kProject.string() + "' && '" ODMIENNIK_COMPILE_DATA "' " + words + " 2>&1";
  Answer answer;
  FILE* pipe = popen(command.c_str(), "r");
  for (int letter = std::fgetc(pipe); letter != EOF; letter = std::fgetc(pipe))
    answer.text.push_back(static_cast<char>(letter));
  answer.status = WEXITSTATUS(pclose(pipe));
  return answer;
}

std::vector<fs::path> brokenSources() {
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(kProject / "tests/broken/data"))
    files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  return files;
}

std::string firstLine(const fs::path& path) {
  std::ifstream file(path);
  std::string line;
  std::getline(file, line);
  return line;
}

std::string contentOf(const fs::path& path) {
  std::ifstream file(path);
  return {std::istreambuf_iterator<char>(file), {}};
}

class FaultySource : public testing::TestWithParam<fs::path> {};

// The first line of the file tells what is said of it: "# KIND LINE: REASON".
TEST_P(FaultySource, is_refused_with_file_line_and_reason) {
  const std::string head = firstLine(GetParam());
  const auto kindEnd = head.find(' ', 2);
  ASSERT_NE(kindEnd, std::string::npos) << head;
  const std::string relative = fs::relative(GetParam(), kProject).string();
  const Answer answer = compile(head.substr(2, kindEnd - 2), relative);
  EXPECT_EQ(answer.text, relative + ":" + head.substr(kindEnd + 1) + "\n");
  EXPECT_EQ(answer.status, 1);
}

INSTANTIATE_TEST_SUITE_P(Broken, FaultySource, testing::ValuesIn(brokenSources()),
                         [](const auto& source) { return source.param.stem().string(); });

// The longest run of plain letters in the reason that a call gives: " stands twice".
std::string plainWordsOf(const std::string& call) {
  static const std::regex kLiteral(R"re("((?:[^"\\]|\\.)*)")re");
  std::string longest;
  for (std::sregex_iterator it(call.begin(), call.end(), kLiteral), end; it != end; ++it) {
    const std::string text = (*it)[1];
    for (std::size_t from = 0, to = 0; to != std::string::npos; from = to + 2) {
      to = text.find('\\', from);
      const std::string part = text.substr(from, to - from);
      if (part.size() > longest.size()) longest = part;
    }
  }
  return longest;
}

std::set<std::string> reasonsInTheCode() {
  static const std::regex kCall(R"((?:fail|takeWord|takeRest|SourceError)\([^;]*;)");
  std::set<std::string> reasons;
  for (const auto& entry : fs::directory_iterator(kProject / "tools/compile_data")) {
    const std::string code = contentOf(entry.path());
    for (std::sregex_iterator it(code.begin(), code.end(), kCall), end; it != end; ++it)
      if (const std::string words = plainWordsOf(it->str()); words.size() > 3)
        reasons.insert(words);
  }
  return reasons;
}

TEST(faulty_sources, every_reason_of_the_compiler_is_shown_by_a_file) {
  std::string heads;
  for (const fs::path& file : brokenSources()) heads += firstLine(file) + "\n";
  heads += "1: cannot be read\n";  // a source that is not there has a test of its own
  const std::set<std::string> reasons = reasonsInTheCode();
  EXPECT_GT(reasons.size(), 40u);
  for (const std::string& reason : reasons)
    EXPECT_NE(heads.find(reason), std::string::npos) << "no file in tests/broken/data: " << reason;
}

TEST(faulty_sources, a_source_that_is_not_there_is_named) {
  const Answer answer = compile("window", "data/no_such_file.txt");
  EXPECT_EQ(answer.text, "data/no_such_file.txt:1: cannot be read\n");
  EXPECT_EQ(answer.status, 1);
}

}  // namespace
