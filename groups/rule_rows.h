// SPDX-License-Identifier: GPL-3.0-or-later
// The shape of the rule tables that the build makes of data/rules: endings, models and their steps.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "engine/utf8.h"

namespace odmiennik::groups {

// What a step does. Forms are stem + text; "a/b" and "a, b" are two forms that each get the stem.
enum class Action : std::uint8_t {
  write,           // slot = stem + text
  writeWhole,      // slot = text, without a stem
  pastParticiple,  // slot 99 = stem + text, with "(e)" when the auxiliary is être
  // The builders of the simple tenses:
  imperfect,
  future,
  imperative,
  presentSubjunctive,
  conditional,
  pastHistoric,
  presentParticiple,
  imperfectSubjunctive,
};

// What a builder starts from; the step's text is added behind it.
enum class Base : std::uint8_t {
  none,        // the builder's own default
  stem,        // the model's stem
  infinitive,  // the infinitive less `cut` letters
  je,          // the je form of the present
  nous,        // the nous form of the present less `cut` letters
  text,        // the text alone
};

// When a step applies: the model's list has the infinitive, or has it not.
enum class Condition : std::uint8_t { always, listed, otherwise };

enum class Endings : std::uint8_t { byInfinitive = 0, a = 1, i = 2, u = 3 };

// "{g}" in a text: where the consonant group goes.
inline constexpr char kGroupMark = '\x01';

struct Step {
  Action action;
  Condition condition;
  std::uint8_t slot;
  Base base;
  std::uint8_t cut;
  Endings endings;
  bool isPlain;           // `text` is one form without a group mark: the common case, done faster
  std::string_view text;  // Windows-1252
};

// A model: its stem is the infinitive less `cut` letters, and less the consonant group's if it
// takes one.
struct Model {
  Utf8View name;
  std::uint8_t cut;
  bool takesGroup;
  std::span<const Step> steps;
  std::span<const std::string_view> verbs;  // for the conditions listed and otherwise
};

enum class Claim : std::uint8_t {
  conjugated,
  onlyCompounds,  // the bare verb of this ending is left alone
  refused,        // no rule covers the ending
};

// A row of a dispatch: the first row whose ending the infinitive has decides.
struct EndingRow {
  std::uint8_t order;       // as grammars of this system number the tests; alternatives share one
  std::string_view ending;  // Windows-1252
  std::uint8_t model;       // position among the models
  std::string_view group;   // consonant group, for a model that takes one
  Claim claim;
};

// What the norm writes over a verb's forms: for this verb alone, or for all that end so.
struct NormRow {
  std::string_view ending;  // Windows-1252
  bool isWholeVerb;
  std::uint8_t model;  // position among the norm's models
};

}  // namespace odmiennik::groups
