// SPDX-License-Identifier: GPL-3.0-or-later
// Searching in all pages.
#include "app/help/find_panel.h"

#include <QVBoxLayout>
#include <algorithm>

#include "app/common/announcement.h"
#include "app/common/list_keys.h"

namespace odmiennik::app {
namespace {

constexpr int kPageRole = Qt::UserRole;

QString answerTo(const QString& typed, std::size_t pages) {
  if (searchedWords(typed).isEmpty()) return {};
  return pages == 0 ? QStringLiteral("Nie znaleziono.")
                    : QStringLiteral("Znalezione strony: %1").arg(pages);
}

}  // namespace

FindPanel::FindPanel(HelpFinder& finder, QWidget* parent)
    : QWidget(parent),
      finder_(finder),
      field_(new QLineEdit),
      answer_(new QLabel),
      pages_(new QListWidget) {
  field_->setObjectName(QStringLiteral("txtSzukajWszędzie"));
  field_->setAccessibleName(QStringLiteral("Szukaj na wszystkich stronach"));
  field_->setPlaceholderText(QStringLiteral("Szukane słowa"));
  field_->setClearButtonEnabled(true);
  answer_->setObjectName(QStringLiteral("lblZnalezione"));
  pages_->setObjectName(QStringLiteral("lstZnalezione"));
  pages_->setAccessibleName(QStringLiteral("Znalezione strony"));
  pages_->setSpacing(1);
  pages_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  pages_->setTextElideMode(Qt::ElideRight);
  arrange();
  new ListKeys(*field_, *pages_);
  connect(field_, &QLineEdit::textChanged, this, &FindPanel::search);
  connect(field_, &QLineEdit::returnPressed, this, &FindPanel::open);
  connect(pages_, &QListWidget::itemClicked, this, &FindPanel::open);
  connect(pages_, &QListWidget::itemActivated, this, &FindPanel::open);
}

void FindPanel::arrange() {
  answer_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(4, 4, 4, 4);
  column->addWidget(field_);
  column->addWidget(answer_);
  column->addWidget(pages_, 1);
}

void FindPanel::begin() {
  field_->setFocus();
  field_->selectAll();
}

void FindPanel::search() {
  const std::vector<FoundPage> found = finder_.find(field_->text());
  list(found);
  answer_->setText(answerTo(field_->text(), found.size()));
  field_->setAccessibleDescription(answer_->text());
  announceAnswer(answer_->text());
}

void FindPanel::list(const std::vector<FoundPage>& pages) {
  pages_->clear();
  for (const FoundPage& page : pages) {
    auto* item = new QListWidgetItem(
        QStringLiteral("%1 (%2)\n%3").arg(page.title, QString::number(page.hits), page.excerpt),
        pages_);
    item->setData(kPageRole, page.page);
    item->setToolTip(page.excerpt);
  }
  if (!pages.empty()) pages_->setCurrentRow(0);
}

void FindPanel::open() {
  const QListWidgetItem* page = pages_->currentItem();
  if (page != nullptr) emit chosen(page->data(kPageRole).toString(), field_->text());
}

}  // namespace odmiennik::app
