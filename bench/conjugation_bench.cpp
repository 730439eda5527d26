// SPDX-License-Identifier: GPL-3.0-or-later
// The whole result for one verb: forms, boxes, pronouns, labels, with index and built-in look-up.
#include <benchmark/benchmark.h>

#include <atomic>
#include <cstdlib>
#include <new>
#include <string>
#include <vector>

#include "dictionary/builtin_verbs.h"
#include "dictionary/verb_index.h"
#include "engine/driver.h"
#include "groups/rules.h"

namespace {

std::atomic<long> allocationCount{0};

}  // namespace

#if defined(__GNUC__) && !defined(__clang__)
// GCC 12 sees free() through the inlined operator delete and takes the pair for a mismatch.
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
#endif

// Counted, so that the benchmark can say how many allocations a verb costs.
void* operator new(std::size_t size) {
  ++allocationCount;
  if (void* memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

using namespace odmiennik;

class NoUserVerbs final : public engine::UserVerbs {
 public:
  bool load(std::string_view, engine::FormTable&, std::uint8_t&) override { return false; }
};

class SilentShell final : public engine::Shell {
 public:
  void show(engine::Notice) override {}
  void resetSettings() override {}
};

struct Program {
  dictionary::GeneralVerbIndex index;
  NoUserVerbs userVerbs;
  dictionary::BuiltinVerbTable builtinVerbs;
  groups::VerbGroups rules;
  SilentShell shell;
  engine::Driver driver{{index, userVerbs, builtinVerbs, rules, shell}};
  engine::Conjugation conjugation;
};

void conjugateIndex(Program& program) {
  for (int position = 0; position < dictionary::verbCount(); ++position) {
    program.driver.conjugate(program.conjugation, dictionary::verbAt(position));
    benchmark::DoNotOptimize(program.conjugation.shown);
  }
}

// Verb after verb of the whole index, buffers warm: the time is that of one verb, on average.
void anyVerbOfTheIndex(benchmark::State& state) {
  Program program;
  conjugateIndex(program);
  const long before = allocationCount;
  int position = 0;
  for (auto _ : state) {
    program.driver.conjugate(program.conjugation, dictionary::verbAt(position));
    benchmark::DoNotOptimize(program.conjugation.shown);
    position = position + 1 == dictionary::verbCount() ? 0 : position + 1;
  }
  state.counters["allocations"] = static_cast<double>(allocationCount - before);
}
BENCHMARK(anyVerbOfTheIndex)->MinTime(2);

void oneVerb(benchmark::State& state, const char* infinitive) {
  Program program;
  for (auto _ : state) {
    program.driver.conjugate(program.conjugation, infinitive);
    benchmark::DoNotOptimize(program.conjugation.shown);
  }
}
BENCHMARK_CAPTURE(oneVerb, first_group, "parler");
BENCHMARK_CAPTURE(oneVerb, second_group, "finir");
BENCHMARK_CAPTURE(oneVerb, third_group, "prendre");
BENCHMARK_CAPTURE(oneVerb, builtin, "aller");
BENCHMARK_CAPTURE(oneVerb, pronominal, "se laver");

// The index's own operations.
void recordOfVerb(benchmark::State& state) {
  dictionary::GeneralVerbIndex index;
  int position = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(index.record(dictionary::verbAt(position)));
    position = (position + 1) % dictionary::verbCount();
  }
}
BENCHMARK(recordOfVerb);

void completePrefix(benchmark::State& state, const char* prefix) {
  for (auto _ : state) benchmark::DoNotOptimize(dictionary::completion(prefix));
}
BENCHMARK_CAPTURE(completePrefix, early, "all");
BENCHMARK_CAPTURE(completePrefix, late, "zo");
BENCHMARK_CAPTURE(completePrefix, none, "xyz");

}  // namespace
