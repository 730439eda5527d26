// The help: opening of its longest page, and a search over all pages, first and again.
#include <benchmark/benchmark.h>

#include "app/help/help_book.h"
#include "app/help/help_browser.h"
#include "app/help/help_finder.h"
#include "bench/qt_application.h"

namespace odmiennik::app {
namespace {

// The help file stands beside the programs of the build, and so beside this one.
bool isOpen(HelpBook& book, benchmark::State& state) {
  needApplication();
  book.lookIn(helpFilePlaces());
  if (book.open()) return true;
  state.SkipWithError("there is no help file");
  return false;
}

// Read, laid out and painted, as between a click and what is seen.
void openPage(benchmark::State& state, const char* name) {
  HelpBook book;
  if (!isOpen(book, state)) return;
  HelpBrowser pages(book, nullptr);
  pages.resize(680, 600);
  pages.show();
  const QUrl address = helpAddress(QString::fromUtf8(name));
  for (auto _ : state) {
    state.PauseTiming();
    pages.setSource(helpAddress(QStringLiteral("strony/default.htm")));
    state.ResumeTiming();
    pages.setSource(address);
    benchmark::DoNotOptimize(pages.grab());
  }
  if (!pages.source().matches(address, QUrl::None) || pages.heading().startsWith(u"Nie"))
    state.SkipWithError("the page is not shown");
}
BENCHMARK_CAPTURE(openPage, tense, "strony/PasseCompose.htm")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(openPage, longest, "strony/ZnaneOdstepstwa.htm")->Unit(benchmark::kMillisecond);

// The first search reads all pages.
void searchFirst(benchmark::State& state) {
  HelpBook book;
  if (!isOpen(book, state)) return;
  for (auto _ : state) {
    HelpFinder finder(book);
    if (finder.find(QStringLiteral("etre")).empty()) state.SkipWithError("nothing is found");
  }
}
BENCHMARK(searchFirst)->Unit(benchmark::kMillisecond);

void searchAgain(benchmark::State& state) {
  HelpBook book;
  if (!isOpen(book, state)) return;
  HelpFinder finder(book);
  for (auto _ : state)
    if (finder.find(QStringLiteral("passe compose")).empty())
      state.SkipWithError("nothing is found");
}
BENCHMARK(searchAgain)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace odmiennik::app
