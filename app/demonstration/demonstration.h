// SPDX-License-Identifier: GPL-3.0-or-later
// The two demonstrations of the tip of the day: the program conjugates a verb before the user's
// eyes.
#pragma once

#include <QLineEdit>
#include <QObject>
#include <QTimer>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "app/demonstration/demonstration_hand.h"
#include "app/demonstration/demonstration_places.h"
#include "app/demonstration/screen_pointer.h"
#include "app/logic/demonstration_script.h"
#include "app/logic/verb_list_commands.h"

namespace odmiennik::app {

// Runs on the main window, one demonstration at a time, and begins when the program is in front.
// Any key or mouse button of the user stops it and does nothing else. Afterwards, however it ended,
// the timers rest, the verb list is closed, and completion and the pointer are as they were before.
class DemonstrationRunner final : public QObject {
  Q_OBJECT

 public:
  // `commands` leave edit mode, which may ask to save; they outlive the runner, as does `window`.
  // `suspendCompletion` is called with true when a demonstration begins and with false when it is
  // over, however it ended: the letters that it types are not to be completed.
  DemonstrationRunner(QMainWindow& window, MainCommands& commands,
                      std::function<void(bool)> suspendCompletion,
                      ScreenPointer pointer = systemPointer());

  // Begins the first (0) or the second (1) demonstration. Nothing begins while one is running, or
  // when the verb that is being edited shall be saved and cannot be.
  void run(int way);
  void stop();

  [[nodiscard]] bool isRunning() const { return isRunning_; }

  // Lets a demonstration take `pace` times as long: 0.5 is twice as fast, 0 is without any pause.
  void setPace(double pace) { pace_ = pace; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  // A demonstration is over, at its end or stopped.
  void finished();

 private:
  void rememberAndSwitchOff();
  void restore();
  void restoreText();
  void proceed();
  void takeStep();
  void take(DemonstrationAction action);
  void waitForPlace();
  void doWithout(const DemonstrationStep& step);
  void choose(DemonstrationPlace place);
  void beginPath();
  void followPath();
  void releaseButton();
  void beginTyping();
  void typeLetter();
  void startAfter(QTimer& timer, std::chrono::milliseconds interval);
  [[nodiscard]] bool isDisturbed() const;
  [[nodiscard]] bool isInFront() const;
  [[nodiscard]] QLineEdit& entryBox() const;

  QMainWindow& window_;
  MainCommands& commands_;
  ScreenPointer pointer_;
  DemonstrationPlaces places_;
  DemonstrationHand hand_;
  QTimer& timCzas;         // the pause before the next step
  QTimer& timCzas2;        // the pointer's path
  QTimer& timCzasClick;    // the mouse button that is held
  QTimer& timCzasLiterki;  // the letters of the verb
  double pace_ = 1;
  bool isRunning_ = false;
  bool hasBegun_ = false;  // with the program in front

  std::span<const DemonstrationStep> steps_;  // those still to be taken
  int attempts_ = 0;                          // to find the next step's place
  std::optional<DemonstrationTarget> target_;
  std::vector<ScreenPoint> path_;
  std::size_t pathPoint_ = 0;
  QString letters_;                    // still to be typed
  std::optional<QString> textBefore_;  // while the verb is being typed over it
  QPoint pointerBefore_;
  std::function<void(bool)> suspend_;
};

}  // namespace odmiennik::app
