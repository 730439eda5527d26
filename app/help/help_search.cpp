// SPDX-License-Identifier: GPL-3.0-or-later
// Searching in a page of the help.
#include "app/help/help_search.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <algorithm>
#include <optional>

#include "app/common/announcement.h"
#include "app/help/folded_text.h"

namespace odmiennik::app {
namespace {

// The field's width in letters: a long form is seen whole in a small window too.
constexpr int kLeastLetters = 20, kMostLetters = 36;

// The next hit in the direction, seen from the selection; the search begins anew at the end.
std::optional<TextHit> nextHit(const std::vector<TextHit>& hits, const QTextCursor& from,
                               bool isBackward) {
  if (hits.empty()) return std::nullopt;
  const auto behind = [&](const TextHit& hit) { return hit.place >= from.selectionEnd(); };
  const auto before = [&](const TextHit& hit) {
    return hit.place + hit.length <= from.selectionStart();
  };
  if (isBackward) {
    const auto found = std::find_if(hits.rbegin(), hits.rend(), before);
    return found == hits.rend() ? hits.back() : *found;
  }
  const auto found = std::find_if(hits.begin(), hits.end(), behind);
  return found == hits.end() ? hits.front() : *found;
}

}  // namespace

HelpSearch::HelpSearch(QTextBrowser& page, QWidget* parent)
    : QWidget(parent),
      page_(page),
      field_(new QLineEdit),
      previous_(new QPushButton(QStringLiteral("P&oprzednie"))),
      next_(new QPushButton(QStringLiteral("&Następne"))),
      answer_(new QLabel) {
  field_->setObjectName(QStringLiteral("txtSzukaj"));
  field_->setAccessibleName(QStringLiteral("Szukaj na stronie"));
  field_->setClearButtonEnabled(true);
  previous_->setObjectName(QStringLiteral("cmdPoprzednie"));
  next_->setObjectName(QStringLiteral("cmdNastępne"));
  answer_->setObjectName(QStringLiteral("lblWynik"));
  arrange();
  connectControls();
}

// The answer takes what room there is: it never moves its neighbours or widens the window.
void HelpSearch::arrange() {
  auto* caption = new QLabel(QStringLiteral("&Szukaj na stronie:"));
  caption->setBuddy(field_);
  const int letter = field_->fontMetrics().averageCharWidth();
  field_->setMinimumWidth(kLeastLetters * letter);
  field_->setMaximumWidth(kMostLetters * letter);
  answer_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(caption);
  row->addWidget(field_, 2);
  for (QPushButton* button : {next_, previous_}) {
    button->setAutoDefault(false);
    row->addWidget(button);
  }
  row->addWidget(answer_, 1);
}

void HelpSearch::connectControls() {
  const auto forward = [this] { search({}); };
  const auto backward = [this] { search(QTextDocument::FindBackward); };
  connect(next_, &QPushButton::clicked, this, forward);
  connect(previous_, &QPushButton::clicked, this, backward);
  connect(field_, &QLineEdit::returnPressed, this, forward);
  connect(field_, &QLineEdit::textEdited, this, &HelpSearch::typed);
  connect(&page_, &QTextBrowser::sourceChanged, this, [this] { answer({}); });
  connect(new QShortcut(QKeySequence(Qt::Key_F3), window()), &QShortcut::activated, this, forward);
  connect(new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F3), window()), &QShortcut::activated,
          this, backward);
}

void HelpSearch::begin() {
  field_->setFocus();
  field_->selectAll();
}

// The word grows at the place where it has been found.
void HelpSearch::typed() {
  QTextCursor caret = page_.textCursor();
  caret.setPosition(caret.selectionStart());
  page_.setTextCursor(caret);
  search({});
}

void HelpSearch::search(QTextDocument::FindFlags direction) {
  answer({});
  const QString phrase = searchedPhrase(field_->text());
  if (phrase.isEmpty()) return;
  const FoldedText text = folded(page_.document()->toRawText());
  const auto hit = nextHit(hitsOf(text, {phrase}), page_.textCursor(),
                           direction.testFlag(QTextDocument::FindBackward));
  if (!hit) return answer(QStringLiteral("Nie znaleziono."));
  QTextCursor caret = page_.textCursor();
  caret.setPosition(hit->place);
  caret.setPosition(hit->place + hit->length, QTextCursor::KeepAnchor);
  page_.setTextCursor(caret);
}

void HelpSearch::answer(const QString& text) {
  answer_->setText(text);
  field_->setAccessibleDescription(text);
  announceAnswer(text);
}

}  // namespace odmiennik::app
