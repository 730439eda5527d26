// SPDX-License-Identifier: GPL-3.0-or-later
// Runs a fuzz target without libFuzzer: every file of the corpus, then pseudo-random changes of
// them from a fixed seed, so that the test is the same everywhere. Usage: fuzz_NAME RUNS CORPUS…
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "tests/fuzz/fuzz_input.h"

namespace {

constexpr std::uint32_t kSeed = 20'001;

std::vector<std::string> readCorpus(const std::vector<std::filesystem::path>& folders) {
  std::vector<std::filesystem::path> paths;
  for (const auto& folder : folders)
    for (const auto& entry : std::filesystem::directory_iterator(folder)) paths.push_back(entry);
  std::sort(paths.begin(), paths.end());
  std::vector<std::string> inputs;
  for (const std::filesystem::path& path : paths) {
    std::ifstream file(path, std::ios::binary);
    inputs.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  return inputs;
}

// A number below `bound`, the same on every system (std distributions are not).
std::size_t below(std::mt19937& random, std::size_t bound) {
  return bound == 0 ? 0 : random() % bound;
}

void changeOneByte(std::string& input, std::mt19937& random) {
  const auto byte = static_cast<char>(below(random, 256));
  const std::size_t at = below(random, input.size() + 1);
  switch (below(random, 3)) {
    case 0:
      input.insert(at, 1, byte);
      break;
    case 1:
      if (!input.empty()) input[at % input.size()] = byte;
      break;
    default:
      if (!input.empty()) input.erase(at % input.size(), 1);
  }
}

// Two inputs joined at random places, then up to three bytes changed.
std::string mutate(const std::vector<std::string>& corpus, std::mt19937& random) {
  const std::string& head = corpus[below(random, corpus.size())];
  const std::string& tail = corpus[below(random, corpus.size())];
  std::string input = head.substr(0, below(random, head.size() + 1));
  input += tail.substr(below(random, tail.size() + 1));
  for (std::size_t changes = below(random, 4); changes > 0; --changes) changeOneByte(input, random);
  return input;
}

void run(const std::string& input) {
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

}  // namespace

int main(int argumentCount, char** arguments) {
  if (argumentCount < 3) return 2;
  const std::vector<std::string> corpus = readCorpus({arguments + 2, arguments + argumentCount});
  if (corpus.empty()) {
    std::fprintf(stderr, "no corpus in %s\n", arguments[2]);
    return 2;
  }
  for (const std::string& input : corpus) run(input);
  std::mt19937 random(kSeed);
  const long runs = std::atol(arguments[1]);
  for (long i = 0; i < runs; ++i) run(mutate(corpus, random));
  std::printf("%zu inputs of the corpus and %ld changed ones passed\n", corpus.size(), runs);
  return 0;
}
