// SPDX-License-Identifier: GPL-3.0-or-later
// The per-user settings store: what belongs to the user and not to the program's folder.
#pragma once

#include <QSettings>
#include <QString>
#include <memory>

#include "engine/utf8.h"

namespace odmiennik::app {

// Whole numbers in the section "Ustawienia". A value that was never written counts as 1 unless
// it says otherwise; one that is no number as 0. Every change is on its way to the disk before the
// call returns.
class UserStore {
 public:
  // The store of the user who runs the program.
  UserStore();

  // A store in a file of its own: UserStore("/home/ala/test.ini").
  explicit UserStore(const QString& file);

  // False where something stands in the store's place that cannot be read: the defaults hold then,
  // and nothing is kept.
  [[nodiscard]] bool isUsable() const;

  // "Pokazuj poradę dnia": whether the tip of the day is shown at start; only 1 asks for it.
  [[nodiscard]] bool isTipShownAtStart() const;
  void setTipShownAtStart(bool isShown);

  // "Autouzupełnianie": whether the entry box completes what is typed.
  [[nodiscard]] bool isCompletionOn() const;
  void setCompletionOn(bool isOn);

  // "Norma": whether the forms of today's norm are shown; only 1 asks for them, nothing kept does
  // not.
  [[nodiscard]] bool isNormShown() const;
  void setNormShown(bool isShown);

  // "Powiększenie pomocy": the size of the help's pages in percent; 100 when nothing is kept.
  [[nodiscard]] int helpZoom() const;
  void setHelpZoom(int percent);

 private:
  [[nodiscard]] bool isOne(Utf8View key) const;
  void write(Utf8View key, int value);

  std::unique_ptr<QSettings> settings_;
};

}  // namespace odmiennik::app
