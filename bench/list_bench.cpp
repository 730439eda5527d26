// SPDX-License-Identifier: GPL-3.0-or-later
// Filling the verb list: with the longest letter, out of sight, which is all but painting, and
// shown; and the window as it opens with the user's own verbs.
#include <benchmark/benchmark.h>

#include <QDialog>

#include "app/list/list_filling.h"
#include "app/list/list_window.h"
#include "bench/qt_application.h"
#include "bench/verbs_folder.h"
#include "dictionary/verb_index.h"

namespace odmiennik::app {
namespace {

constexpr char kLongestLetter = 'd';

void fillLongestLetter(benchmark::State& state) {
  needApplication();
  QDialog window;
  ListControls controls(window);
  window.setVisible(state.range(0) != 0);
  QCoreApplication::processEvents();
  VerbList list;
  for (auto _ : state) fillLetter(kLongestLetter, list, controls);
  if (controls.lstCzasowniki.count() != dictionary::verbCount(kLongestLetter))
    state.SkipWithError("the letter is not complete");
}
BENCHMARK(fillLongestLetter)->ArgName("shown")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

struct NoCommands final : MainCommands {
  [[nodiscard]] bool isEditing() const override { return false; }
  [[nodiscard]] bool edit() override { return false; }
  [[nodiscard]] bool newVerb() override { return false; }
  [[nodiscard]] bool conjugate(std::string_view /*infinitive*/) override { return false; }
  [[nodiscard]] bool print() override { return false; }
};

// Reading the file, filling the list, the first picture.
void openListOfOwnVerbs(benchmark::State& state) {
  needApplication();
  const auto count = static_cast<int>(state.range(0));
  const dictionary::VerbsFolder folder(count);
  dictionary::NoMessages messages;
  dictionary::UserVerbsFile verbs(folder.prefix(), count, messages);
  NoCommands commands;
  QWidget main;
  for (auto _ : state) {
    ListWindow window(
        folder.prefix(), verbs, commands, [](QWidget&, const SavedList&) {}, &main);
    window.showFor(ListPurpose::list);
    QCoreApplication::processEvents();
    if (window.findChild<QListWidget*>()->count() != count)
      state.SkipWithError("the list is not complete");
  }
}
BENCHMARK(openListOfOwnVerbs)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace odmiennik::app
