// SPDX-License-Identifier: GPL-3.0-or-later
// Running of the demonstrations.
#include "app/demonstration/demonstration.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <utility>

#include "app/common/text.h"
#include "app/controls/main_menu.h"

namespace odmiennik::app {
namespace {

QTimer& timerOf(QObject& owner, const char* name) {
  auto* timer = new QTimer(&owner);
  timer->setObjectName(QLatin1String(name));
  timer->setSingleShot(true);
  timer->setTimerType(Qt::PreciseTimer);
  return *timer;
}

ScreenPoint screenPoint(QPoint point) { return {point.x(), point.y()}; }

// What the user does to stop a demonstration. The repetition of a key that is held since before it
// began is nothing that is done now.
bool isInterruption(const QEvent& event) {
  switch (event.type()) {
    case QEvent::KeyPress:
      return !static_cast<const QKeyEvent&>(event).isAutoRepeat();
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::NonClientAreaMouseButtonPress:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
      return true;
    default:
      return false;
  }
}

}  // namespace

DemonstrationRunner::DemonstrationRunner(QMainWindow& window, MainCommands& commands,
                                         std::function<void(bool)> suspendCompletion,
                                         ScreenPointer pointer)
    : QObject(&window),
      window_(window),
      commands_(commands),
      pointer_(std::move(pointer)),
      places_(window),
      timCzas(timerOf(window, "timCzas")),
      timCzas2(timerOf(window, "timCzas2")),
      timCzasClick(timerOf(window, "timCzasClick")),
      timCzasLiterki(timerOf(window, "timCzasLiterki")),
      suspend_(std::move(suspendCompletion)) {
  connect(&timCzas, &QTimer::timeout, this, &DemonstrationRunner::takeStep);
  connect(&timCzas2, &QTimer::timeout, this, &DemonstrationRunner::followPath);
  connect(&timCzasClick, &QTimer::timeout, this, &DemonstrationRunner::releaseButton);
  connect(&timCzasLiterki, &QTimer::timeout, this, &DemonstrationRunner::typeLetter);
}

void DemonstrationRunner::run(int way) {
  if (isRunning_ || (commands_.isEditing() && !commands_.edit())) return;
  isRunning_ = true;
  hasBegun_ = false;
  rememberAndSwitchOff();
  steps_ = stepsOf(way == 0 ? Demonstration::typing : Demonstration::picking);
  attempts_ = 0;
  proceed();
}

void DemonstrationRunner::rememberAndSwitchOff() {
  pointerBefore_ = pointer_.position();
  suspend_(true);
  window_.activateWindow();  // the key that stops must arrive here
  qApp->installEventFilter(this);
}

void DemonstrationRunner::stop() {
  if (!isRunning_) return;
  isRunning_ = false;
  restore();
  emit finished();
}

void DemonstrationRunner::restore() {
  qApp->removeEventFilter(this);
  for (QTimer* timer : {&timCzas, &timCzas2, &timCzasClick, &timCzasLiterki}) timer->stop();
  hand_.letGo();
  while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
  if (QDialog* list = places_.list()) list->close();
  restoreText();
  suspend_(false);
  pointer_.moveTo(pointerBefore_);
}

// Selected, so that the user's next verb replaces it.
void DemonstrationRunner::restoreText() {
  if (!textBefore_) return;
  entryBox().setText(*textBefore_);
  entryBox().selectAll();
  textBefore_.reset();
}

void DemonstrationRunner::startAfter(QTimer& timer, std::chrono::milliseconds interval) {
  timer.start(paced(interval, pace_));
}

void DemonstrationRunner::proceed() {
  if (!isRunning_) return;
  if (steps_.empty()) return stop();
  startAfter(timCzas, steps_.front().pause);
}

// A message on the screen, or a window that is gone, is the user's affair.
bool DemonstrationRunner::isDisturbed() const {
  return QApplication::activeModalWidget() != nullptr || !window_.isVisible() ||
         window_.isMinimized();
}

// Where the keys that stop it arrive, and what a click opens may stay open. The list counts too.
bool DemonstrationRunner::isInFront() const {
  const QWidget* active = QApplication::activeWindow();
  return active == &window_ || (active != nullptr && active == places_.list());
}

void DemonstrationRunner::takeStep() {
  if (isDisturbed()) return stop();
  if (!hasBegun_ && !isInFront()) return timCzas.start(kPlaceInterval);
  hasBegun_ = true;
  const DemonstrationStep step = steps_.front();
  target_ = places_.find(step.place);
  if (!target_ && isOpenedByClick(step.place)) return doWithout(step);
  if (!target_) return waitForPlace();
  attempts_ = 0;
  steps_ = steps_.subspan(1);
  take(step.action);
}

// What is waited for takes its time at any pace.
void DemonstrationRunner::waitForPlace() {
  if (++attempts_ >= kPlaceAttempts) return stop();
  timCzas.start(kPlaceInterval);
}

// Some desktops close at once what no key and no button of the user has opened. What would have
// been clicked there is chosen all the same.
void DemonstrationRunner::doWithout(const DemonstrationStep& step) {
  steps_ = steps_.subspan(1);
  if (step.action == DemonstrationAction::click) choose(step.place);
  proceed();
}

// A drop-down list that is closed takes its entry's first letter from the keyboard.
void DemonstrationRunner::choose(DemonstrationPlace place) {
  if (place == DemonstrationPlace::listItem)
    return menuItem(*window_.menuBar(), "mnuEdycjaLista").trigger();
  const auto letters = places_.find(DemonstrationPlace::letterChoice);
  if (letters) hand_.strike(*letters->widget, Qt::Key_unknown, fromUtf8(kPickedVerb).first(1));
}

void DemonstrationRunner::take(DemonstrationAction action) {
  switch (action) {
    case DemonstrationAction::movePointer:
      return beginPath();
    case DemonstrationAction::click:
      hand_.press(*target_);
      return startAfter(timCzasClick, kClickLength);
    case DemonstrationAction::typeVerb:
      return beginTyping();
    case DemonstrationAction::pressEnter:
      textBefore_.reset();
      hand_.strike(entryBox(), Qt::Key_Return, QStringLiteral("\r"));
      return proceed();
    case DemonstrationAction::rest:
      return proceed();
  }
}

void DemonstrationRunner::beginPath() {
  path_ = pathOf(screenPoint(pointer_.position()), screenPoint(target_->onScreen()));
  pathPoint_ = 0;
  followPath();
}

// Where the pointer cannot be moved the place is reached at once.
void DemonstrationRunner::followPath() {
  const ScreenPoint point = path_[pathPoint_++];
  const bool isMoved = pointer_.moveTo({point.x, point.y});
  if (isMoved && pathPoint_ < path_.size()) return startAfter(timCzas2, kPathInterval);
  hand_.hover(*target_);
  proceed();
}

void DemonstrationRunner::releaseButton() {
  hand_.release();
  proceed();
}

void DemonstrationRunner::beginTyping() {
  textBefore_ = entryBox().text();
  entryBox().selectAll();
  letters_ = fromUtf8(kTypedVerb);
  typeLetter();
}

void DemonstrationRunner::typeLetter() {
  hand_.strike(entryBox(), Qt::Key_unknown, letters_.first(1));
  letters_.remove(0, 1);
  if (letters_.isEmpty()) return proceed();
  startAfter(timCzasLiterki, kLetterInterval);
}

// What stops the demonstration does nothing else: the user wanted no more than that.
bool DemonstrationRunner::eventFilter(QObject* watched, QEvent* event) {
  if (hand_.isBusy()) return false;
  if (event->type() == QEvent::Close && watched == &window_) stop();
  if (event->type() == QEvent::ShortcutOverride) {
    event->accept();  // no command is begun with the key that stops
    return true;
  }
  if (isInterruption(*event)) {
    stop();
    return true;
  }
  return event->type() == QEvent::KeyPress;
}

QLineEdit& DemonstrationRunner::entryBox() const {
  return *window_.findChild<QLineEdit*>(QStringLiteral("txtCzasownik_96"));
}

}  // namespace odmiennik::app
