// SPDX-License-Identifier: GPL-3.0-or-later
// Progress of a list that is saved.
#include "app/exporting/saving_window.h"

#include <QDialogButtonBox>
#include <QScopedValueRollback>
#include <QVBoxLayout>
#include <algorithm>

#include "app/common/announcement.h"

namespace odmiennik::app {
namespace {

constexpr int kWidth = 380;
constexpr int kTurnMilliseconds = 30;     // of work between two looks at what the user does
constexpr int kWaitingMilliseconds = 50;  // for a message to be answered
constexpr int kQuarters = 4;

}  // namespace

SavingWindow::SavingWindow(std::unique_ptr<ListSaver> saver, const QString& name, QWidget* parent)
    : SteadyWindow(parent), saver_(std::move(saver)), bar_(*new QProgressBar(this)) {
  setObjectName(QStringLiteral("frmZapisListy"));
  setWindowTitle(QStringLiteral("Zapisywanie listy"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowModality(Qt::ApplicationModal);
  layOut(name);
  connect(&turn_, &QTimer::timeout, this, &SavingWindow::goOn);
  turn_.start(0);
}

SavingWindow::~SavingWindow() = default;

void SavingWindow::layOut(const QString& name) {
  setMinimumWidth(kWidth);
  auto* label =
      new QLabel(QStringLiteral("Odmiana czasowników zapisuje się w pliku „%1”.").arg(name));
  label->setObjectName(QStringLiteral("lblPlik"));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  bar_.setObjectName(QStringLiteral("barPostęp"));
  bar_.setAccessibleName(QStringLiteral("Zapisane czasowniki"));
  bar_.setRange(0, static_cast<int>(saver_->count()));
  bar_.setFormat(QStringLiteral("%v z %m"));
  bar_.setAlignment(Qt::AlignCenter);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
  connect(buttons, &QDialogButtonBox::rejected, this, &SavingWindow::reject);
  auto* rows = new QVBoxLayout(this);
  rows->addWidget(label);
  rows->addWidget(&bar_);
  rows->addWidget(buttons);
}

// A message of a verb that cannot be read is shown from inside: meanwhile nothing else goes on.
void SavingWindow::goOn() {
  turn_.setInterval(isUnderModalWindow(*this) ? kWaitingMilliseconds : 0);
  if (isGoingOn_ || turn_.interval() != 0 || !saver_) return;
  const QScopedValueRollback<bool> goingOn(isGoingOn_, true);
  const ListSaver::State state = saver_->goOn(kTurnMilliseconds);
  bar_.setValue(static_cast<int>(saver_->savedCount()));
  tellPart();
  if (state == ListSaver::State::going) return;
  turn_.stop();
  saver_.reset();
  const bool isSaved = state == ListSaver::State::saved;
  done(isSaved ? Accepted : Rejected);
  emit ended(isSaved);
}

// To who does not see the bar.
void SavingWindow::tellPart() {
  const auto quarter = static_cast<int>(kQuarters * saver_->savedCount() /
                                        std::max<std::size_t>(saver_->count(), 1));
  if (quarter == toldQuarter_ || quarter == kQuarters) return;
  toldQuarter_ = quarter;
  announceAnswer(QStringLiteral("%1%").arg(100 * quarter / kQuarters));
}

// What has not been finished is removed at once.
void SavingWindow::done(int result) {
  if (isUnderModalWindow(*this) || (isGoingOn_ && saver_)) return;
  turn_.stop();
  if (saver_) announce(QStringLiteral("Zapisywanie przerwano."));
  saver_.reset();
  SteadyWindow::done(result);
}

}  // namespace odmiennik::app
