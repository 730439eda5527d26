// SPDX-License-Identifier: GPL-3.0-or-later
// The driver with its fakes.
#include "tests/support/test_program.h"

#include <stdexcept>

#include "engine/normalization.h"
#include "engine/windows1252.h"

namespace odmiennik::testing {
namespace {

template <typename TextOfSlot>
std::string inARow(int firstSlot, TextOfSlot textOfSlot) {
  std::string row;
  for (int i = 0; i < engine::tenseOf(firstSlot).slotCount; ++i)
    row.append(i == 0 ? "" : " | ").append(textOfSlot(firstSlot + i));
  return row;
}

}  // namespace

std::string french(std::string_view utf8) {
  engine::FromUtf8 result = engine::fromUtf8(asUtf8(utf8));
  if (result.fault != engine::Utf8Fault::none)
    throw std::invalid_argument("not a text of Windows-1252: " + std::string(utf8));
  return std::move(result.text);
}

std::string utf8(std::string_view french) { return std::string(bytesOf(engine::toUtf8(french))); }

TestProgram::TestProgram() : driver_({index_, userVerbs_, builtinVerbs_, rules_, shell_}) {}

void TestProgram::tellRecord(std::string_view infinitive, std::string_view record) {
  index_.told[french(infinitive)] = record;
}

void TestProgram::addUserVerb(UserRecord record) {
  userVerbs_.records.push_back(std::move(record));
}

engine::Outcome TestProgram::conjugate(std::string_view typed) {
  return driver_.conjugate(conjugation_, french(typed));
}

engine::Outcome TestProgram::edit(std::string_view typed) {
  return driver_.conjugateForEditing(conjugation_, french(typed));
}

void TestProgram::chooseAuxiliary(std::uint8_t auxiliary, bool isEditing) {
  engine::Driver::toggleAuxiliary(conjugation_, auxiliary == engine::kAvoir, isEditing);
}

std::string TestProgram::slot(int number) const { return utf8(conjugation_.forms[number]); }

std::string TestProgram::box(int number) const {
  return utf8(conjugation_.shown.boxes[static_cast<std::size_t>(number)]);
}

std::string TestProgram::pronoun(int number) const {
  return utf8(conjugation_.shown.pronouns[static_cast<std::size_t>(number)]);
}

std::string TestProgram::caption(int number) const {
  return utf8(conjugation_.shown.captions[static_cast<std::size_t>(number)]);
}

std::string TestProgram::tense(int firstSlot) const {
  return inARow(firstSlot, [this](int number) { return slot(number); });
}

std::string TestProgram::boxesOfTense(int firstSlot) const {
  return inARow(firstSlot, [this](int number) { return box(number); });
}

std::string_view TestProgram::Index::record(std::string_view infinitive) {
  ++questions;
  const auto found = told.find(infinitive);
  return found == told.end() ? general.record(infinitive) : std::string_view(found->second);
}

bool TestProgram::UserVerbs::load(std::string_view infinitive, engine::FormTable& forms,
                                  std::uint8_t& storedAux) {
  for (const UserRecord& record : records) {
    forms.clear();
    for (const auto& [number, text] : record.slots) forms[number] = french(text);
    storedAux = record.auxiliary;
    if (engine::lookupKey(forms[engine::slot::kInfinitive]) ==
        engine::withoutReflexivePrefix(infinitive))
      return true;
  }
  return false;
}

bool TestProgram::BuiltinVerbs::load(std::string_view key, engine::FormTable& forms) const {
  return !isForgotten && table.load(key, forms);
}

}  // namespace odmiennik::testing
