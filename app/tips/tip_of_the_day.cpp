// SPDX-License-Identifier: GPL-3.0-or-later
// Showing the tip of the day.
#include "app/tips/tip_of_the_day.h"

#include <QDateTime>
#include <QRandomGenerator>
#include <QScopedValueRollback>

#include "app/common/user_store.h"
#include "app/tips/tip_window.h"

namespace odmiennik::app {

TipOfTheDay::TipOfTheDay(QWidget& window, UserStore& store, Demonstrations demonstrations)
    : window_(window), store_(store), demonstrations_(std::move(demonstrations)) {}

void TipOfTheDay::showAtStart() {
  if (store_.isTipShownAtStart()) show();
}

// Queued commands may come twice before the first window stands; it is shown once.
void TipOfTheDay::show() {
  if (isShown_) return;
  if (const auto demonstration = showTip()) demonstrations_.run(*demonstration);
}

std::optional<int> TipOfTheDay::showTip() {
  const QScopedValueRollback<bool> shown(isShown_, true);
  QRandomGenerator random(static_cast<quint32>(QDateTime::currentMSecsSinceEpoch()));
  TipWindow tip(&window_, store_, isForced_, [&random] { return random.generateDouble(); });
  tip.offerDemonstrations(demonstrations_.announce);
  tip.exec();
  return tip.chosenDemonstration();
}

void TipOfTheDay::showHowTo() {
  if (isShown_) return;
  isForced_ = true;
  show();
}

}  // namespace odmiennik::app
