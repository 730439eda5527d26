// SPDX-License-Identifier: GPL-3.0-or-later
// The panels beside the pages.
#include "app/help/side_panels.h"

#include <QTabBar>

namespace odmiennik::app {

SidePanels::SidePanels(const HelpBook& book, QWidget* parent)
    : QTabWidget(parent),
      book_(book),
      finder_(book),
      contents_(new ContentsPanel(this)),
      index_(new IndexPanel(this)),
      find_(new FindPanel(finder_, this)) {
  setObjectName(QStringLiteral("tabPomoc"));
  setAccessibleName(QStringLiteral("Spis treści, indeks, szukanie"));
  addTab(contents_, QStringLiteral("Spis &treści"));
  addTab(index_, QStringLiteral("&Indeks"));
  addTab(find_, QStringLiteral("S&zukaj"));
  connect(contents_, &ContentsPanel::chosen, this,
          [this](const QString& page) { emit chosen(page, {}); });
  connect(contents_, &ContentsPanel::entered, this, &SidePanels::entered);
  connect(index_, &IndexPanel::chosen, this, [this](const QString& page) {
    emit chosen(page, {});
    emit entered();
  });
  connect(find_, &FindPanel::chosen, this, [this](const QString& page, const QString& words) {
    emit chosen(page, words);
    emit entered();
  });
}

void SidePanels::fill() {
  finder_.forget();
  contents_->fill(book_.contents());
  index_->fill(book_.index());
}

void SidePanels::beginContents() {
  setCurrentWidget(contents_);
  contents_->setFocus();
}

void SidePanels::beginIndex() {
  setCurrentWidget(index_);
  index_->begin();
}

void SidePanels::beginFind() {
  setCurrentWidget(find_);
  find_->begin();
}

void SidePanels::beginCurrent() {
  if (currentWidget() == index_) return index_->begin();
  if (currentWidget() == find_) return find_->begin();
  contents_->setFocus();
}

}  // namespace odmiennik::app
