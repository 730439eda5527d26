// SPDX-License-Identifier: GPL-3.0-or-later
// Telling whoever listens to the window that something has happened.
#pragma once

#include <QAccessible>
#include <QString>
#include <functional>

namespace odmiennik::app {

// Lets a screen reader say a sentence, once what is being done is over; sentences of one doing are
// said together, in their order: announce("Zapisano czasownik finir."). Nothing is shown.
void announce(const QString& sentence);

// The same for an answer to what is being done again and again: typing in a search, Tab from link
// to link. It takes the place of the answer before that has not been said yet; empty: nothing does.
void announceAnswer(const QString& answer);

// Hands the sentences to `listener` from now on, or with none to the screen reader again.
void announceTo(std::function<void(const QString&)> listener);

// While it lives, no change of a control reaches a screen reader. For filling all boxes: a screen
// reader that is told of two hundred changes at once drops what follows, the announcement of the
// verb too.
class ChangesUnheard {
 public:
  ChangesUnheard() : before_(QAccessible::installUpdateHandler([](QAccessibleEvent*) {})) {}
  ChangesUnheard(const ChangesUnheard&) = delete;
  ChangesUnheard& operator=(const ChangesUnheard&) = delete;
  ~ChangesUnheard() { QAccessible::installUpdateHandler(before_); }

 private:
  QAccessible::UpdateHandler before_;
};

}  // namespace odmiennik::app
