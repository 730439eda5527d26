// SPDX-License-Identifier: GPL-3.0-or-later
// The sentence of statistics.
#include "app/logic/statistics.h"

namespace odmiennik::app {
namespace {

// The sign's place in front of the digits is a blank for a number that has none.
Utf8Text withSignPlace(std::int32_t number) { return (number < 0 ? "" : " ") + decimal(number); }

Utf8View verbNoun(std::int32_t conjugations) {
  if (conjugations == 1) return " czasownik";
  const char last = decimal(conjugations).back();
  return last >= '2' && last <= '4' ? " czasowniki" : " czasowników";
}

}  // namespace

Utf8Text statisticsSentence(std::int32_t conjugations, std::int32_t runs) {
  Utf8Text sentence = "Statystyka: odmieniono" + withSignPlace(conjugations);
  sentence += verbNoun(conjugations);
  sentence += " po " + decimal(runs);
  sentence += runs == 1 ? " uruchomieniu." : " uruchomieniach.";
  return sentence;
}

}  // namespace odmiennik::app
