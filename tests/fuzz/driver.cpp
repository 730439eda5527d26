// SPDX-License-Identifier: GPL-3.0-or-later
// Fuzz target: the driver on any typed bytes, with any verb-information record and user verb.
#include <map>
#include <string>
#include <string_view>

#include "dictionary/builtin_verbs.h"
#include "engine/driver.h"
#include "engine/normalization.h"
#include "groups/rules.h"
#include "tests/fuzz/fuzz_input.h"

namespace odmiennik::testing {
namespace {

using engine::Conjugation;
using engine::Outcome;

struct OneRecord final : engine::VerbIndex {
  std::string_view record(std::string_view) override { return text; }
  std::string_view text;
};

// A user verb whose every slot holds the same text, or none when the text is empty.
struct OneUserVerb final : engine::UserVerbs {
  bool load(std::string_view, engine::FormTable& forms, std::uint8_t& storedAux) override {
    if (text.empty()) return false;
    for (int slot = 0; slot < engine::kSlotCount; ++slot) forms[slot] = text;
    storedAux = static_cast<std::uint8_t>(text.size() % 2);
    return true;
  }
  std::string_view text;
};

struct Messages final : engine::Shell {
  void show(engine::Notice) override { ++shown; }
  void resetSettings() override { ++resets; }
  int shown = 0;
  int resets = 0;
};

// The input: typed text, record, user verb's text, with a zero byte between them.
std::string_view takePart(std::string_view& rest) {
  const auto end = rest.find('\0');
  const std::string_view part = rest.substr(0, end);
  rest = end == std::string_view::npos ? std::string_view{} : rest.substr(end + 1);
  return part;
}

struct Program {
  OneRecord index;
  OneUserVerb userVerbs;
  dictionary::BuiltinVerbTable builtinVerbs;
  groups::VerbGroups rules;
  Messages shell;
  engine::Driver driver{{index, userVerbs, builtinVerbs, rules, shell}};
};

std::string allBoxes(const Conjugation& conjugation) {
  std::string text;
  for (const std::string_view box : conjugation.shown.boxes) text.append(box).push_back('\n');
  for (const std::string_view pronoun : conjugation.shown.pronouns) text.append(pronoun);
  return text;
}

bool isPartOf(std::string_view box, const std::string& form) {
  return box.data() >= form.data() && box.data() + box.size() <= form.data() + form.size();
}

void requireShownViewsToBeValid(const Conjugation& conjugation, bool isEditing) {
  for (int slot = 0; slot < engine::kSlotCount; ++slot) {
    const std::string& form = conjugation.forms[slot];
    const std::string_view box = conjugation.shown.boxes[static_cast<std::size_t>(slot)];
    if (form.empty())
      require(box == (isEditing ? "" : " -- "), "an empty slot shows as missing");
    else
      require(isPartOf(box, form), "a box is a view of its slot");
  }
  for (const std::string_view pronoun : conjugation.shown.pronouns)
    require(!pronoun.empty(), "every person has a pronoun");
}

void requireOnlyInfinitive(const Conjugation& conjugation) {
  for (int slot = 0; slot < engine::kSlotCount; ++slot)
    if (slot != engine::slot::kInfinitive)
      require(conjugation.forms[slot].empty(), "a refused verb has an empty table");
}

void requireFlags(const Conjugation& conjugation) {
  const engine::EngineFlags& flags = conjugation.flags;
  require(flags.auxiliary <= 1, "the auxiliary is avoir or être");
  require(!flags.isPronominal, "the pronominal flag ends with the command");
}

void conjugateTwice(Program& program, std::string_view typed) {
  Conjugation first, second;
  const Outcome outcome = program.driver.conjugate(first, typed);
  require(program.driver.conjugate(second, typed) == outcome, "the outcome is the same twice");
  if (outcome == Outcome::reset) {
    require(program.shell.resets == 2, "resetuj reaches the shell");
    return;
  }
  const std::string boxes = allBoxes(first);
  require(boxes == allBoxes(second), "two programs show the same");
  requireShownViewsToBeValid(first, false);
  requireFlags(first);
  if (outcome == Outcome::refused) requireOnlyInfinitive(first);
  require(program.driver.conjugate(first, typed) == outcome, "the outcome is the same again");
  require(boxes == allBoxes(first), "a verb conjugated again shows the same");
}

void editAndSwitchAuxiliary(Program& program, std::string_view typed) {
  Conjugation conjugation;
  require(program.driver.conjugateForEditing(conjugation, typed) != Outcome::refused,
          "editing refuses nothing");
  if (program.shell.resets > 0) return;
  requireShownViewsToBeValid(conjugation, true);
  require(conjugation.information.isAuxiliaryFree, "editing enables the auxiliary");
  program.driver.conjugate(conjugation, typed);
  for (const bool isAvoir : {false, true, false}) {
    engine::Driver::toggleAuxiliary(conjugation, isAvoir, false);
    requireShownViewsToBeValid(conjugation, false);
    requireFlags(conjugation);
  }
}

}  // namespace
}  // namespace odmiennik::testing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace odmiennik::testing;
  std::string_view rest(reinterpret_cast<const char*>(data), size);
  const std::string typed(takePart(rest));
  const std::string record(takePart(rest));
  const std::string userForm(takePart(rest));
  Program program;
  program.index.text = record;
  program.userVerbs.text = userForm;
  conjugateTwice(program, typed);
  editAndSwitchAuxiliary(program, typed);
  return 0;
}
