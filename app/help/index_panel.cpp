// SPDX-License-Identifier: GPL-3.0-or-later
// The index.
#include "app/common/list_keys.h"
#include "app/help/index_panel.h"

#include <QVBoxLayout>

#include "app/help/folded_text.h"

namespace odmiennik::app {
namespace {

constexpr int kPageRole = Qt::UserRole;
constexpr int kFoldedRole = Qt::UserRole + 1;

}  // namespace

IndexPanel::IndexPanel(QWidget* parent)
    : QWidget(parent), field_(new QLineEdit), keywords_(new QListWidget) {
  field_->setObjectName(QStringLiteral("txtHasło"));
  field_->setAccessibleName(QStringLiteral("Hasło indeksu"));
  field_->setPlaceholderText(QStringLiteral("Hasło"));
  field_->setClearButtonEnabled(true);
  keywords_->setObjectName(QStringLiteral("lstIndeks"));
  keywords_->setAccessibleName(QStringLiteral("Indeks"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(4, 4, 4, 4);
  column->addWidget(field_);
  column->addWidget(keywords_, 1);
  new ListKeys(*field_, *keywords_);
  connect(field_, &QLineEdit::textChanged, this, &IndexPanel::narrow);
  connect(field_, &QLineEdit::returnPressed, this, &IndexPanel::open);
  connect(keywords_, &QListWidget::itemClicked, this, &IndexPanel::open);
  connect(keywords_, &QListWidget::itemActivated, this, &IndexPanel::open);
}

void IndexPanel::fill(const std::vector<HelpContentsEntry>& entries) {
  keywords_->clear();
  for (const HelpContentsEntry& entry : entries) {
    auto* keyword = new QListWidgetItem(entry.title, keywords_);
    keyword->setData(kPageRole, entry.page);
    keyword->setData(kFoldedRole, folded(entry.title).text);
  }
  narrow();
}

void IndexPanel::begin() {
  field_->setFocus();
  field_->selectAll();
}

// The first keyword that begins with what is typed is chosen; without one, the first that holds it.
void IndexPanel::narrow() {
  const QString typed = searchedPhrase(field_->text());
  QListWidgetItem* first = nullptr;
  QListWidgetItem* best = nullptr;
  for (int row = 0; row < keywords_->count(); ++row) {
    QListWidgetItem* keyword = keywords_->item(row);
    const QString text = keyword->data(kFoldedRole).toString();
    keyword->setHidden(!text.contains(typed));
    if (keyword->isHidden()) continue;
    if (first == nullptr) first = keyword;
    if (best == nullptr && text.startsWith(typed)) best = keyword;
  }
  keywords_->setCurrentItem(best != nullptr ? best : first);
}

void IndexPanel::open() {
  const QListWidgetItem* keyword = keywords_->currentItem();
  if (keyword != nullptr && !keyword->isHidden()) emit chosen(keyword->data(kPageRole).toString());
}

}  // namespace odmiennik::app
