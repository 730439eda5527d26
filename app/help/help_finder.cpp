// SPDX-License-Identifier: GPL-3.0-or-later
// Searching in all pages.
#include "app/help/help_finder.h"

#include <QSet>
#include <algorithm>

#include "app/help/page_text.h"

namespace odmiennik::app {
namespace {

constexpr int kBeforeHit = 24;
constexpr int kExcerpt = 90;

bool hasAll(const QString& folded, const QStringList& words) {
  return std::all_of(words.begin(), words.end(),
                     [&](const QString& word) { return folded.contains(word); });
}

bool hasAny(const QString& folded, const QStringList& words) {
  return std::any_of(words.begin(), words.end(),
                     [&](const QString& word) { return folded.contains(word); });
}

// "Passé composé – czas przeszły złożony" -> "Passé composé"
QString shortTitle(const QString& title) { return title.section(QStringLiteral(" – "), 0, 0); }

// Begins with a whole word where there is one near.
QString excerptAt(const QString& text, int place) {
  if (place <= kBeforeHit) return text.left(kExcerpt).trimmed() + QChar(u'…');
  const int start = place - kBeforeHit;
  const auto blank = text.indexOf(QLatin1Char(' '), start);
  const auto from = blank >= 0 && blank < place ? blank + 1 : start;
  return QChar(u'…') + text.mid(from, kExcerpt).trimmed() + QChar(u'…');
}

}  // namespace

void HelpFinder::readPages() {
  QSet<QString> seen;
  for (const HelpContentsEntry& entry : book_.contents()) {
    if (entry.page.isEmpty() || seen.contains(entry.page)) continue;
    seen.insert(entry.page);
    const PageText page = pageText(book_.page(helpAddress(entry.page)));
    const QString title = page.title.isEmpty() ? entry.title : shortTitle(page.title);
    pages_.push_back({entry.page, title, page.text, folded(page.text), folded(title).text});
  }
}

std::vector<FoundPage> HelpFinder::find(const QString& typed) {
  const QStringList words = searchedWords(typed);
  if (words.isEmpty()) return {};
  if (pages_.empty()) readPages();
  std::vector<FoundPage> inTitle, inText;
  for (const Page& page : pages_) {
    if (!hasAll(page.folded.text, words)) continue;
    const std::vector<TextHit> hits = hitsOf(page.folded, words);
    (hasAny(page.foldedTitle, words) ? inTitle : inText)
        .push_back({page.page, page.title, excerptAt(page.text, hits.front().place),
                    static_cast<int>(hits.size())});
  }
  for (std::vector<FoundPage>* found : {&inTitle, &inText})
    std::stable_sort(
        found->begin(), found->end(),
        [](const FoundPage& first, const FoundPage& second) { return first.hits > second.hits; });
  inTitle.insert(inTitle.end(), inText.begin(), inText.end());
  return inTitle;
}

}  // namespace odmiennik::app
