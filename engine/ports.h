// SPDX-License-Identifier: GPL-3.0-or-later
// What the driver needs of the rest of the system, as small interfaces that are given to it once.
#pragma once

#include <string_view>

#include "engine/flags.h"
#include "engine/noting.h"
#include "engine/utf8.h"

namespace odmiennik::engine {

// The general verb index.
class VerbIndex {
 public:
  virtual ~VerbIndex() = default;
  // The verb-information record of an infinitive, the empty text when nothing is known of it.
  [[nodiscard]] virtual std::string_view record(std::string_view infinitive) = 0;
};

// The user's own verbs.
class UserVerbs {
 public:
  virtual ~UserVerbs() = default;
  // Loads the first record saved under just this infinitive (normalized, its reflexive prefix
  // included); where there is none, the first whose infinitive differs by the prefix only: with
  // "se laver" and "laver" saved each is found, with one of them both words find it. False leaves
  // nothing promised about `forms`.
  [[nodiscard]] virtual bool load(std::string_view infinitive, FormTable& forms,
                                  std::uint8_t& storedAux) = 0;
};

// The built-in verbs.
class BuiltinVerbs {
 public:
  virtual ~BuiltinVerbs() = default;
  // Loads the entry whose infinitive, without its reflexive prefix, is `key`; "@" becomes empty.
  [[nodiscard]] virtual bool load(std::string_view key, FormTable& forms) const = 0;
};

// What a rule set did: the model that conjugated the verb ("" when none did), or that no rule
// covers it.
struct RuleResult {
  Utf8View model;
  bool isRefused = false;
};

// The rules of the three groups; slot 96 holds the infinitive, all other slots are empty. Each is
// there for a table alone and for one whose trace is kept.
class RuleSets {
 public:
  virtual ~RuleSets() = default;
  // For an infinitive in "er".
  [[nodiscard]] virtual RuleResult conjugateFirstGroup(FormTable& forms,
                                                       std::uint8_t auxiliary) const = 0;
  [[nodiscard]] virtual RuleResult conjugateFirstGroup(TracedForms& forms,
                                                       std::uint8_t auxiliary) const = 0;
  // For any other; while a verb is being edited, no ending is refused.
  [[nodiscard]] virtual RuleResult conjugateByEnding(FormTable& forms, std::uint8_t auxiliary,
                                                     bool isEditing) const = 0;
  [[nodiscard]] virtual RuleResult conjugateByEnding(TracedForms& forms, std::uint8_t auxiliary,
                                                     bool isEditing) const = 0;
  // Writes today's norm over the simple forms of a verb that the rules have conjugated, or one that
  // is built in; slot 96 holds the infinitive. What does not depart stays.
  virtual void applyNorm(FormTable& forms, std::uint8_t auxiliary, bool isBuiltin) const = 0;
  virtual void applyNorm(TracedForms& forms, std::uint8_t auxiliary, bool isBuiltin) const = 0;
};

enum class Notice : std::uint8_t {
  conjugatedRegularly,  // unknown, but a rule set conjugated it
  notConjugable,        // neither stored nor covered by a rule
};

// Whoever shows messages and carries out the command hidden in the entry box.
class Shell {
 public:
  virtual ~Shell() = default;
  virtual void show(Notice notice) = 0;
  // The word "resetuj": asks, and unless cancelled resets the settings and ends the program.
  virtual void resetSettings() = 0;
};

struct Ports {
  VerbIndex& index;
  UserVerbs& userVerbs;
  const BuiltinVerbs& builtinVerbs;
  const RuleSets& rules;
  Shell& shell;
};

}  // namespace odmiennik::engine
