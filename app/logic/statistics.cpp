// SPDX-License-Identifier: GPL-3.0-or-later
// The sentence of statistics.
#include "app/logic/statistics.h"

#include <string_view>

namespace odmiennik::app {
namespace {

// The sign's place in front of the digits is a blank for a number that has none.
std::string withSignPlace(std::int32_t number) {
  return (number < 0 ? "" : " ") + std::to_string(number);
}

std::string_view verbNoun(std::int32_t conjugations) {
  if (conjugations == 1) return " czasownik";
  const char last = std::to_string(conjugations).back();
  return last >= '2' && last <= '4' ? " czasowniki" : " czasowników";
}

}  // namespace

std::string statisticsSentence(std::int32_t conjugations, std::int32_t runs) {
  std::string sentence = "Statystyka: odmieniono" + withSignPlace(conjugations);
  sentence += verbNoun(conjugations);
  sentence += " po " + std::to_string(runs);
  sentence += runs == 1 ? " uruchomieniu." : " uruchomieniach.";
  return sentence;
}

}  // namespace odmiennik::app
