// SPDX-License-Identifier: GPL-3.0-or-later
// From a form to its verb: simple forms, phrases, slips of the finger, the user's own verbs.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "bench/verbs_folder.h"
#include "dictionary/builtin_verbs.h"
#include "dictionary/verb_index.h"
#include "engine/driver.h"
#include "engine/french.h"
#include "finder/bare_forms.h"
#include "finder/finder.h"
#include "groups/rules.h"

namespace odmiennik::finder {
namespace {

using dictionary::NoMessages;
using dictionary::VerbsFolder;
using engine::operator""_fr;

struct SilentShell final : engine::Shell {
  void show(engine::Notice) override {}
  void resetSettings() override {}
};

// A finder of a user without verbs of his own.
struct Program {
  NoMessages messages;
  dictionary::UserVerbsFile userVerbs{"/there/is/no/such/folder/", 0, messages};
  Finder finder{userVerbs};
  Readings readings;
};

// Every simple form of every tenth verb, in an order that leaps from verb to verb.
std::vector<std::string> someForms(dictionary::UserVerbsFile& userVerbs) {
  dictionary::GeneralVerbIndex index;
  dictionary::BuiltinVerbTable builtinVerbs;
  groups::VerbGroups rules;
  SilentShell shell;
  engine::Driver driver({index, userVerbs, builtinVerbs, rules, shell});
  engine::Conjugation conjugation;
  BareForms bare;
  std::vector<std::string> forms;
  for (int verb = 0; verb < dictionary::verbCount(); verb += 10) {
    static_cast<void>(driver.conjugate(conjugation, dictionary::verbAt(verb)));
    bare.read(conjugation);
    constexpr Places kAlwaysFound = bitOf(kParticiplePlace + 1) - 1;  // not every verb agrees
    for (const BareForm& form : bare.all())
      if ((form.places & kAlwaysFound) != 0) forms.push_back(form.text);
  }
  std::vector<std::string> leaping;
  constexpr std::size_t kLeap = 7919;  // a prime
  for (std::size_t i = 0, at = 0; i < forms.size(); ++i, at = (at + kLeap) % forms.size())
    leaping.push_back(forms[at]);
  return leaping;
}

void findSimpleForm(benchmark::State& state) {
  Program program;
  const std::vector<std::string> forms = someForms(program.userVerbs);
  std::size_t next = 0;
  for (auto _ : state) {
    program.finder.find(forms[next], program.readings);
    benchmark::DoNotOptimize(program.readings.data());
    if (program.readings.empty()) state.SkipWithError("a form was not found");
    if (++next == forms.size()) next = 0;
  }
}
BENCHMARK(findSimpleForm);

void findText(benchmark::State& state, std::string_view text) {
  Program program;
  for (auto _ : state) {
    program.finder.find(text, program.readings);
    benchmark::DoNotOptimize(program.readings.data());
  }
}
BENCHMARK_CAPTURE(findText, phrase, "nous nous sommes lavés"_fr);
BENCHMARK_CAPTURE(findText, without_accents, "preferais");
BENCHMARK_CAPTURE(findText, one_slip_away, "mangeassionss");

// What a key costs in the window: the file is looked at, nothing is found, all slips are tried.
void typeOneKey(benchmark::State& state) {
  Program program;
  for (auto _ : state) {
    program.finder.lookAgain();
    program.finder.find("mangeassionsx", program.readings);
    benchmark::DoNotOptimize(program.readings.data());
  }
}
BENCHMARK(typeOneKey);

// A finder of a user with very many verbs of his own, which have been read.
struct OwnProgram {
  VerbsFolder folder;
  NoMessages messages;
  dictionary::UserVerbsFile userVerbs{folder.prefix(), VerbsFolder::kVerbCount, messages};
  Finder finder{userVerbs};
  Readings readings;

  OwnProgram() { finder.lookAgain(); }
};

// Each of them is asked for the first time in so long that nothing is kept of it.
void findOwnVerbAnew(benchmark::State& state) {
  OwnProgram program;
  int number = 0;
  for (auto _ : state) {
    program.finder.find(VerbsFolder::infinitive(number), program.readings);
    if (program.readings.empty()) state.SkipWithError("the verb was not found");
    if (++number == VerbsFolder::kVerbCount) number = 0;
  }
}
BENCHMARK(findOwnVerbAnew);

// Asked for again, as while one types.
void findOwnVerb(benchmark::State& state) {
  OwnProgram program;
  const std::string last = VerbsFolder::infinitive(VerbsFolder::kVerbCount - 1);
  for (auto _ : state) {
    program.finder.find(last, program.readings);
    if (program.readings.empty()) state.SkipWithError("the verb was not found");
  }
}
BENCHMARK(findOwnVerb);

void indexOwnVerbs(benchmark::State& state) {
  const VerbsFolder folder;
  NoMessages messages;
  for (auto _ : state) {
    dictionary::UserVerbsFile verbs(folder.prefix(), VerbsFolder::kVerbCount, messages);
    Finder finder(verbs);
    finder.lookAgain();
    benchmark::DoNotOptimize(&finder);
  }
}
BENCHMARK(indexOwnVerbs)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace odmiennik::finder
