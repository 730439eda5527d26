// SPDX-License-Identifier: GPL-3.0-or-later
// How long it takes to look up the last of 10,000 user verbs.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "bench/verbs_folder.h"

namespace odmiennik::dictionary {
namespace {

void lookUpLastUserVerb(benchmark::State& state) {
  const VerbsFolder folder;
  NoMessages messages;
  UserVerbsFile verbs(folder.prefix(), VerbsFolder::kVerbCount, messages);
  const std::string last = VerbsFolder::infinitive(VerbsFolder::kVerbCount - 1);
  engine::FormTable forms;
  std::uint8_t storedAux = 0;
  for (auto _ : state)
    if (!verbs.load(last, forms, storedAux)) state.SkipWithError("the verb was not found");
}
BENCHMARK(lookUpLastUserVerb)->Unit(benchmark::kMicrosecond);

// The first time after a change of the file: the places of all records are noted.
void lookUpAfterAChange(benchmark::State& state) {
  const VerbsFolder folder;
  NoMessages messages;
  const std::string last = VerbsFolder::infinitive(VerbsFolder::kVerbCount - 1);
  engine::FormTable forms;
  std::uint8_t storedAux = 0;
  for (auto _ : state) {
    UserVerbsFile verbs(folder.prefix(), VerbsFolder::kVerbCount, messages);
    if (!verbs.load(last, forms, storedAux)) state.SkipWithError("the verb was not found");
  }
  const auto size = std::filesystem::file_size(bytesOf(folder.prefix() + "Czasowniki.dat"));
  state.SetBytesProcessed(static_cast<std::int64_t>(size) * state.iterations());
}
BENCHMARK(lookUpAfterAChange)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace odmiennik::dictionary
