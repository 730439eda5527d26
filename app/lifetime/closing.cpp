// SPDX-License-Identifier: GPL-3.0-or-later
// Closing the main window.
#include "app/lifetime/closing.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QSessionManager>
#include <QWidget>
#include <cstdio>

#include "app/lifetime/settings_keeper.h"

namespace odmiennik::app {

using dictionary::Button;
using dictionary::MessageId;

Closing::Closing(QWidget& window, SettingsKeeper& settings, dictionary::MessageBoxes& messages,
                 EditedVerb editedVerb, std::function<void()> end)
    : window_(window),
      settings_(settings),
      messages_(messages),
      editedVerb_(std::move(editedVerb)),
      end_(std::move(end)) {
  window_.installEventFilter(this);
  connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &Closing::commit,
          Qt::DirectConnection);
}

void Closing::closeWithoutQuestion() {
  noExitQuestion_ = true;
  window_.close();
}

void Closing::endNow() {
  if (hasEnded_) return;
  hasEnded_ = true;
  if (!settings_.saveSilently())
    std::fprintf(stderr, "odmiennik: %s\n",
                 dictionary::messageText(MessageId::settingsNotWritten).c_str());
  end_();
}

void Closing::commit(QSessionManager& session) {
  const bool mayAsk = session.allowsInteraction();
  if (!prepareForSessionEnd(mayAsk)) session.cancel();
  if (mayAsk) session.release();
}

bool Closing::prepareForSessionEnd(bool mayAsk) {
  if (hasEnded_) return true;
  const QScopedValueRollback<bool> asking(isAsking_, true);
  if (mayAsk && !editedVerb_.mayClose()) return false;
  settings_.SaveSettings();
  isSessionEnding_ = true;
  qGuiApp->installEventFilter(this);
  return true;
}

// Another program kept the system from shutting down, and the user goes on working.
void Closing::stayInSession() {
  isSessionEnding_ = false;
  qGuiApp->removeEventFilter(this);
  editedVerb_.stay();
}

bool Closing::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress) {
    if (isSessionEnding_) stayInSession();
    return false;
  }
  if (watched != &window_ || event->type() != QEvent::Close || close()) return false;
  event->ignore();
  return true;
}

// The save question comes after the exit question, while closing can still be cancelled.
bool Closing::close() {
  if (hasEnded_) return true;
  if (isAsking_) return false;  // a second request behind the question of the first
  const QScopedValueRollback<bool> asking(isAsking_, true);
  if (asksToExit() && messages_.show(MessageId::endProgram) != Button::yes) return false;
  if (!isSessionEnding_ && !editedVerb_.mayClose())
    return false;  // an ending session has asked before
  settings_.SaveSettings();
  hasEnded_ = true;
  end_();
  return true;
}

bool Closing::asksToExit() const { return !isSessionEnding_ && !noExitQuestion_; }

}  // namespace odmiennik::app
