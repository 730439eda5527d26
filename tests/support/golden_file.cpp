// SPDX-License-Identifier: GPL-3.0-or-later
// Reading, comparing and updating of golden files.
#include "tests/support/golden_file.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace odmiennik::testing {
namespace {

constexpr int kShownDifferences = 40;

std::string pathOf(std::string_view name) {
  return ODMIENNIK_SOURCE_DIR "/tests/golden/" + std::string(name);
}

std::vector<std::string> linesOf(std::string_view text) {
  std::istringstream stream{std::string(text)};
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

const std::string& lineOr(const std::vector<std::string>& lines, std::size_t index,
                          const std::string& otherwise) {
  return index < lines.size() ? lines[index] : otherwise;
}

}  // namespace

bool isUpdatingGolden() {
  const char* value = std::getenv("ODMIENNIK_UPDATE_GOLDEN");
  return value != nullptr && std::string_view(value) == "1";
}

std::string readGolden(std::string_view name) {
  std::ifstream file(pathOf(name), std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + pathOf(name));
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

void writeGolden(std::string_view name, std::string_view content) {
  std::ofstream file(pathOf(name), std::ios::binary);
  file << content;
  if (!file.flush()) throw std::runtime_error("cannot write " + pathOf(name));
}

void expectGolden(std::string_view name, std::string_view actual) {
  if (isUpdatingGolden()) return writeGolden(name, actual);
  const std::vector<std::string> wanted = linesOf(readGolden(name));
  const std::vector<std::string> found = linesOf(actual);
  const std::string missing = "(no such line)";
  std::string verb = "the head of the file";
  int differences = 0;
  for (std::size_t i = 0; i < std::max(wanted.size(), found.size()); ++i) {
    const std::string& wantedLine = lineOr(wanted, i, missing);
    const std::string& foundLine = lineOr(found, i, missing);
    if (wantedLine.starts_with("verb ")) verb = wantedLine;
    if (wantedLine == foundLine) continue;
    if (++differences > kShownDifferences) continue;
    ADD_FAILURE() << name << ":" << i + 1 << ", " << verb << "\n  golden: " << wantedLine
                  << "\n  now:    " << foundLine;
  }
  EXPECT_EQ(differences, 0) << name << ": if the change is meant, rewrite with "
                            << "ODMIENNIK_UPDATE_GOLDEN=1 and review the difference";
}

}  // namespace odmiennik::testing
