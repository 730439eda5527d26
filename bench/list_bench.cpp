// SPDX-License-Identifier: GPL-3.0-or-later
// Filling the verb list with the longest letter: out of sight, which is all but painting, and
// shown.
#include <benchmark/benchmark.h>

#include <QDialog>

#include "app/list/list_filling.h"
#include "bench/qt_application.h"
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

}  // namespace
}  // namespace odmiennik::app
