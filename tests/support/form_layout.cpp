// SPDX-License-Identifier: GPL-3.0-or-later
// Layout of golden conjugations.
#include "tests/support/form_layout.h"

#include "engine/slots.h"

namespace odmiennik::testing {
namespace {

// "Conditionnel passé 1re forme" is the longest name: 28 letters.
constexpr std::size_t kNameWidth = 30;

std::size_t letterCount(std::string_view utf8) {
  std::size_t count = 0;
  for (const char byte : utf8) count += (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
  return count;
}

std::string nameOfTense(const engine::Tense& tense) {
  return std::string(bytesOf(tense.mood)) + " " + std::string(bytesOf(tense.name));
}

}  // namespace

std::string nameOfSlot(int slot) {
  const std::string_view person = bytesOf(engine::personOf(slot));
  return nameOfTense(engine::tenseOf(slot)) + (person.empty() ? "" : ", ") + std::string(person);
}

std::string layOut(const std::function<std::string(int)>& textOfSlot) {
  std::string lines;
  for (const engine::Tense& tense : engine::kTenses) {
    const std::string name = nameOfTense(tense);
    lines.append(name).append(kNameWidth - letterCount(name), ' ');
    for (int i = 0; i < tense.slotCount; ++i) {
      const std::string text = textOfSlot(tense.firstSlot + i);
      lines.append(i == 0 ? "" : " | ").append(text.empty() ? "-" : text);
    }
    lines.push_back('\n');
  }
  return lines;
}

}  // namespace odmiennik::testing
