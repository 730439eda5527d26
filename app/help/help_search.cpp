// Searching in a page of the help.
#include "app/help/help_search.h"

#include <QHBoxLayout>
#include <QShortcut>

namespace odmiennik::app {

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

void HelpSearch::arrange() {
  auto* caption = new QLabel(QStringLiteral("&Szukaj na stronie:"));
  caption->setBuddy(field_);
  field_->setMaximumWidth(220);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(caption);
  row->addWidget(field_, 1);
  for (QPushButton* button : {next_, previous_}) {
    button->setAutoDefault(false);
    row->addWidget(button);
  }
  row->addWidget(answer_);
  row->addStretch(1);
}

void HelpSearch::connectControls() {
  const auto forward = [this] { search({}); };
  const auto backward = [this] { search(QTextDocument::FindBackward); };
  connect(next_, &QPushButton::clicked, this, forward);
  connect(previous_, &QPushButton::clicked, this, backward);
  connect(field_, &QLineEdit::returnPressed, this, forward);
  connect(field_, &QLineEdit::textEdited, this, &HelpSearch::typed);
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
  answer_->clear();
  if (field_->text().isEmpty() || page_.find(field_->text(), direction)) return;
  const QTextCursor before = page_.textCursor();
  page_.moveCursor(direction.testFlag(QTextDocument::FindBackward) ? QTextCursor::End
                                                                   : QTextCursor::Start);
  if (page_.find(field_->text(), direction)) return;
  page_.setTextCursor(before);
  answer_->setText(QStringLiteral("Nie znaleziono."));
}

}  // namespace odmiennik::app
