// SPDX-License-Identifier: GPL-3.0-or-later
// Changes of spelling.
#include "explainer/spelling_change.h"

#include <algorithm>

namespace odmiennik::explainer {
namespace {

bool isMute(std::string_view ending) { return ending == "e" || ending == "es" || ending == "ent"; }

// A letter twice: the one before the change is the one that comes in.
bool isDoubling(std::string_view stem, const SpellingChange& change) {
  return change.from.empty() && change.at > 0 && change.to == stem.substr(change.at - 1, 1);
}

// `isAtEnd`: the change touches the ending, whose first letter calls for it.
void addReplacement(Remarks& remarks, const SpellingChange& change, std::string_view ending,
                    bool isAtEnd) {
  if (isMute(ending)) return add(remarks, PhraseId::replacedMute, {change.to, change.from});
  if (!isAtEnd) return add(remarks, PhraseId::replaced, {change.to, change.from});
  add(remarks, PhraseId::replacedBefore, {change.to, change.from, ending.substr(0, 1)});
}

void addInsertion(Remarks& remarks, std::string_view stem, const SpellingChange& change,
                  std::string_view ending) {
  if (isDoubling(stem, change) && isMute(ending))
    return add(remarks, PhraseId::doubledMute, {change.to});
  const bool isAtEnd = change.at == stem.size() && !ending.empty();
  if (isAtEnd) return add(remarks, PhraseId::inserted, {change.to, ending.substr(0, 1)});
  add(remarks, PhraseId::addedLetters, {change.to});
}

}  // namespace

SpellingChange changeBetween(std::string_view regular, std::string_view changed) {
  const std::size_t most = std::min(regular.size(), changed.size());
  std::size_t first = 0;
  while (first < most && regular[first] == changed[first]) ++first;
  std::size_t last = 0;
  while (last < most - first &&
         regular[regular.size() - 1 - last] == changed[changed.size() - 1 - last])
    ++last;
  return {first, regular.substr(first, regular.size() - first - last),
          changed.substr(first, changed.size() - first - last)};
}

bool canBeTold(std::string_view regular, std::string_view changed) {
  if (regular == changed) return true;
  const SpellingChange change = changeBetween(regular, changed);
  if (change.from.empty()) return change.at == regular.size();
  return regular.rfind(change.from) == change.at && !change.to.empty();
}

void addChange(Remarks& remarks, std::string_view regular, std::string_view changed,
               std::string_view ending) {
  if (regular == changed) return;
  const SpellingChange change = changeBetween(regular, changed);
  const bool isAtEnd = change.at + change.from.size() == regular.size() && !ending.empty();
  if (change.from.empty()) return addInsertion(remarks, regular, change, ending);
  addReplacement(remarks, change, ending, isAtEnd);
}

}  // namespace odmiennik::explainer
