// SPDX-License-Identifier: GPL-3.0-or-later
// What the command shows of one verb.
#pragma once

#include <string>
#include <vector>

#include "process.h"

namespace odmiennik::end_to_end {

inline constexpr int kBoxes = 101;

// Where tenses begin, and persons within them.
inline constexpr int kPresent = 0, kImperfect = 6, kPastHistoric = 12, kFuture = 18;
inline constexpr int kPresentSubjunctive = 48, kImperfectSubjunctive = 54, kConditional = 72;
inline constexpr int kImperative = 90, kInfinitive = 96;
inline constexpr int kPresentParticiple = 98, kPastParticiple = 99;
inline constexpr int kIl = 2, kNous = 3;

// Behind a verb: the record of one that takes être.
inline constexpr const char* kWithEtre = "\t|3|2|1|2";

// Example: Shown("manger").tense(0) -> "mange | manges | mange | mangeons | mangez | mangent".
class Shown {
 public:
  // `typed` as on the command line, a record behind a tab included.
  explicit Shown(const std::string& typed, const Arguments& options = {});

  [[nodiscard]] const std::string& box(int slot) const;
  [[nodiscard]] const std::string& pronoun(int slot) const;
  [[nodiscard]] const std::string& caption(int number) const;
  // The boxes of the tense that begins with that slot.
  [[nodiscard]] std::string tense(int firstSlot) const;
  // Whether the answer has that key with that value: has("source", "\"rule\"").
  [[nodiscard]] bool has(const std::string& key, const std::string& value) const;

 private:
  std::string json_;
  std::vector<std::string> boxes_;
  std::vector<std::string> pronouns_;
  std::vector<std::string> captions_;
};

// The only sentence about a verb that is not known but follows a rule, and about one that does not.
inline constexpr const char* kConjugatedRegularly =
    "Podany czasownik nie został znaleziony, ale został odmieniony regularnie.";
inline constexpr const char* kNotConjugable =
    "Podany czasownik nie został znaleziony i nie było możliwe odmienienie go regularnie.";

// As it stands among the messages of an answer; "[]" without a text.
[[nodiscard]] std::string messages(const std::string& text = {});

}  // namespace odmiennik::end_to_end
