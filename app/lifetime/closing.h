// SPDX-License-Identifier: GPL-3.0-or-later
// The end of the program: what is asked before, and what is saved.
#pragma once

#include <QObject>
#include <functional>

#include "dictionary/messages.h"

class QSessionManager;
class QWidget;

namespace odmiennik::app {

class SettingsKeeper;

// What the end of the program asks of the verb that is being edited.
struct EditedVerb {
  std::function<bool()> mayClose;  // the question about it; false keeps the window and its texts
  std::function<void()> stay;      // a session that was about to end goes on
};

// Answers the close requests of the main window, and the system's when it shuts down.
class Closing final : public QObject {
  Q_OBJECT

 public:
  // `end` ends the program at once; it runs when the window has been closed.
  Closing(QWidget& window, SettingsKeeper& settings, dictionary::MessageBoxes& messages,
          EditedVerb editedVerb, std::function<void()> end);

  // Closes the window without the exit question: a start that is aborted.
  void closeWithoutQuestion();

  // The system is about to end the session: saves what there is to save, asking about an edited
  // verb only where the system lets programs ask. False asks the system not to go on.
  [[nodiscard]] bool prepareForSessionEnd(bool mayAsk);

  // Ends the program at once, with its settings saved: the system waits for no answer. That they
  // could not be saved is a line on standard error.
  void endNow();

  // Whether the window has been closed for good.
  [[nodiscard]] bool hasEnded() const { return hasEnded_; }

  // The window's close event, and the user's doings after a session that did not end.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void commit(QSessionManager& session);
  void stayInSession();
  [[nodiscard]] bool close();
  [[nodiscard]] bool asksToExit() const;

  QWidget& window_;
  SettingsKeeper& settings_;
  dictionary::MessageBoxes& messages_;
  EditedVerb editedVerb_;
  std::function<void()> end_;
  bool noExitQuestion_ = false;
  bool isSessionEnding_ = false;
  bool isAsking_ = false;
  bool hasEnded_ = false;
};

}  // namespace odmiennik::app
