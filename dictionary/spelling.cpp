// SPDX-License-Identifier: GPL-3.0-or-later
// Looking for a verb whatever its accents.
#include "dictionary/spelling.h"

#include "dictionary/verb_index.h"
#include "engine/french.h"
#include "engine/normalization.h"
#include "engine/plain_letters.h"

namespace odmiennik::dictionary {
namespace {

// The spelling of 1990 drops the mute e of asseoir, rasseoir, surseoir.
constexpr std::string_view kReformed = "oir";
constexpr std::string_view kTraditional = "eoir";

std::string_view verbLike(std::string_view plain) {
  if (plain.empty()) return {};
  const char letter = plain.front();
  for (int k = 1; k <= verbCount(letter); ++k)
    if (engine::withoutAccents(verbOfLetter(letter, k)) == plain) return verbOfLetter(letter, k);
  return {};
}

}  // namespace

std::string otherSpelling(std::string_view infinitive) {
  std::string typed;
  engine::normalize(infinitive, typed);
  const std::string_view bare = engine::withoutReflexivePrefix(typed);
  std::string plain = engine::withoutAccents(bare);
  std::string_view verb = verbLike(plain);
  if (verb.empty() && plain.ends_with(kReformed))
    verb = verbLike(plain.replace(plain.size() - kReformed.size(), kReformed.size(), kTraditional));
  if (verb.empty() || verb == bare) return {};
  return typed.substr(0, typed.size() - bare.size()) + std::string(verb);
}

}  // namespace odmiennik::dictionary
