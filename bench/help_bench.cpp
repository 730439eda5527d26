// SPDX-License-Identifier: GPL-3.0-or-later
// The help: opening of each of its pages, and a search over all pages, first and again.
#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include "app/common/text.h"
#include "app/common/user_store.h"
#include "app/help/help_book.h"
#include "app/help/help_browser.h"
#include "app/help/help_finder.h"
#include "app/help/help_window.h"
#include "app/logic/tense_topics.h"
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

// The help as its user has it, in a size of its own.
class OpenHelp {
 public:
  explicit OpenHelp(HelpBook& book) : window_(book, store_, nullptr) {
    window_.showPage(fromUtf8(kWelcomePage));
  }

  // From a click to what is seen: read, laid out, painted with all that follows the page.
  void show(const QUrl& address) {
    pages().setSource(address);
    QCoreApplication::sendPostedEvents();
    window_.repaint();
  }

  [[nodiscard]] HelpBrowser& pages() const { return *window_.findChild<HelpBrowser*>(); }

 private:
  QTemporaryDir folder_;
  UserStore store_{folder_.filePath(QStringLiteral("store.ini"))};
  HelpWindow window_;
};

void openPage(benchmark::State& state, const QUrl& address) {
  HelpBook book;
  if (!isOpen(book, state)) return;
  OpenHelp help(book);
  for (auto _ : state) {
    state.PauseTiming();
    help.show(helpAddress(QStringLiteral("strony/Drukowanie.htm")));
    state.ResumeTiming();
    help.show(address);
  }
  if (help.pages().source() != address || help.pages().heading().startsWith(u"Nie "))
    state.SkipWithError("the page is not shown");
}

// Every page of the contents is a benchmark of its own: openPage/PasseCompose.htm.
const bool kPagesAreRegistered = [] {
  HelpBook book(helpFilePlaces());
  book.open();
  for (const HelpContentsEntry& entry : book.contents())
    benchmark::RegisterBenchmark(
        ("openPage" + entry.page.mid(entry.page.lastIndexOf(u'/'))).toUtf8(),
        [address = helpAddress(entry.page)](auto& state) { openPage(state, address); })
        ->Unit(benchmark::kMillisecond);
  return true;
}();

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
