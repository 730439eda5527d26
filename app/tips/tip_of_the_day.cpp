// SPDX-License-Identifier: GPL-3.0-or-later
// Showing the tip of the day.
#include "app/tips/tip_of_the_day.h"

#include <QAction>
#include <QDateTime>
#include <QRandomGenerator>
#include <QScopedValueRollback>

#include "app/common/user_store.h"
#include "app/controls/main_menu.h"
#include "app/tips/tip_window.h"

namespace odmiennik::app {

TipOfTheDay::TipOfTheDay(QWidget& window, const QMenuBar& menus, UserStore& store)
    : window_(window), store_(store) {
  connect(&menuItem(menus, "mnuPomocPoradaDnia"), &QAction::triggered, this, &TipOfTheDay::show,
          Qt::QueuedConnection);
  connect(&menuItem(menus, "mnuPomocJak"), &QAction::triggered, this, &TipOfTheDay::showHowTo,
          Qt::QueuedConnection);
}

void TipOfTheDay::showAtStart() {
  if (store_.isTipShownAtStart()) show();
}

void TipOfTheDay::demonstrateWith(std::function<void()> announce,
                                  std::function<void(int)> demonstrate) {
  announce_ = std::move(announce);
  demonstrate_ = std::move(demonstrate);
}

// Queued commands may come twice before the first window stands; it is shown once.
void TipOfTheDay::show() {
  if (isShown_) return;
  if (const auto demonstration = showTip()) demonstrate_(*demonstration);
}

std::optional<int> TipOfTheDay::showTip() {
  const QScopedValueRollback<bool> shown(isShown_, true);
  QRandomGenerator random(static_cast<quint32>(QDateTime::currentMSecsSinceEpoch()));
  TipWindow tip(&window_, store_, isForced_, [&random] { return random.generateDouble(); });
  if (announce_) tip.offerDemonstrations(announce_);
  tip.exec();
  return tip.chosenDemonstration();
}

void TipOfTheDay::showHowTo() {
  if (isShown_) return;
  isForced_ = true;
  show();
}

}  // namespace odmiennik::app
