// SPDX-License-Identifier: GPL-3.0-or-later
// The table of contents.
#include "app/help/contents_panel.h"

#include <QSignalBlocker>
#include <QTreeWidgetItemIterator>
#include <algorithm>

namespace odmiennik::app {
namespace {

constexpr int kBetweenEntries = 4;
constexpr int kPageRole = Qt::UserRole;

}  // namespace

ContentsPanel::ContentsPanel(QWidget* parent) : QTreeWidget(parent) {
  setObjectName(QStringLiteral("treSpis"));
  // The tab above it is called "Spis treści" already.
  setAccessibleName(QStringLiteral("Rozdziały i strony"));
  setHeaderHidden(true);
  setUniformRowHeights(true);
  connect(this, &QTreeWidget::currentItemChanged, this, &ContentsPanel::choose);
  connect(this, &QTreeWidget::itemClicked, this, &ContentsPanel::choose);
  connect(this, &QTreeWidget::itemActivated, this, [this](const QTreeWidgetItem* entry) {
    choose(entry);
    emit entered();
  });
}

void ContentsPanel::choose(const QTreeWidgetItem* entry) {
  const QString page = entry == nullptr ? QString() : entry->data(0, kPageRole).toString();
  if (!page.isEmpty()) emit chosen(page);
}

// A tree tells screen readers of every entry that is chosen, as if it had the keyboard; an entry
// that only follows the page would take them away from it.
void ContentsPanel::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  if (hasFocus()) return QTreeWidget::currentChanged(current, previous);
  QAbstractItemView::currentChanged(current, previous);
}

void ContentsPanel::selectionChanged(const QItemSelection& chosen, const QItemSelection& left) {
  if (hasFocus()) return QTreeWidget::selectionChanged(chosen, left);
  QAbstractItemView::selectionChanged(chosen, left);
}

void ContentsPanel::fill(const std::vector<HelpContentsEntry>& entries) {
  const QSignalBlocker quiet(this);
  clear();
  std::vector<QTreeWidgetItem*> path{invisibleRootItem()};
  for (const HelpContentsEntry& entry : entries) {
    path.resize(std::min<std::size_t>(path.size(), static_cast<std::size_t>(entry.level)));
    auto* item = new QTreeWidgetItem(path.back(), QStringList(entry.title));
    item->setData(0, kPageRole, entry.page);
    item->setSizeHint(0, QSize(0, fontMetrics().height() + kBetweenEntries));
    path.push_back(item);
  }
  // Not expandAll(): a screen reader would call every page "expanded" too.
  for (QTreeWidgetItemIterator chapter(this, QTreeWidgetItemIterator::HasChildren); *chapter;
       ++chapter)
    (*chapter)->setExpanded(true);
}

// The entry that was chosen stays chosen where several lead to the page; else it is a page's own
// entry, not that of its chapter.
void ContentsPanel::follow(const QString& page) {
  const auto leadsThere = [&](const QTreeWidgetItem& entry) {
    return entry.data(0, kPageRole).toString() == page;
  };
  if (currentItem() != nullptr && leadsThere(*currentItem())) return;
  const QSignalBlocker quiet(this);
  QTreeWidgetItemIterator entry(this, QTreeWidgetItemIterator::NoChildren);
  while (*entry != nullptr && !leadsThere(**entry)) ++entry;
  setCurrentItem(*entry);
}

}  // namespace odmiennik::app
