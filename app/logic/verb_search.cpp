// SPDX-License-Identifier: GPL-3.0-or-later
// Typing into the list.
#include "app/logic/verb_search.h"

#include "engine/normalization.h"
#include "engine/plain_letters.h"

namespace odmiennik::app {
namespace {

using Entries = std::vector<std::string>;

// In lower case too: "Éteindre" -> "eteindre".
std::string plain(std::string_view french) {
  std::string lower(french);
  engine::lowerCase(lower);
  return engine::withoutAccents(lower);
}

// The first entry from `start` on that begins so, going round the end.
std::optional<std::size_t> firstFrom(std::size_t start, std::string_view beginning,
                                     const Entries& entries) {
  for (std::size_t step = 0; step < entries.size(); ++step) {
    const std::size_t entry = (start + step) % entries.size();
    if (plain(entries[entry]).starts_with(beginning)) return entry;
  }
  return std::nullopt;
}

bool isOneLetterRepeated(std::string_view typed) {
  return typed.find_first_not_of(typed.front()) == std::string_view::npos;
}

}  // namespace

std::optional<std::size_t> VerbSearch::type(std::string_view key, bool isContinued,
                                            const Entries& entries,
                                            std::optional<std::size_t> current) {
  if (!isContinued) typed_.clear();
  const std::size_t next = current ? *current + 1 : 0;
  const std::size_t start = typed_.empty() ? next : current.value_or(0);
  typed_ += plain(key);
  if (typed_.empty()) return std::nullopt;
  const auto found = firstFrom(start, typed_, entries);
  if (found || !isOneLetterRepeated(typed_)) return found;
  return firstFrom(next, typed_.substr(0, 1), entries);
}

}  // namespace odmiennik::app
