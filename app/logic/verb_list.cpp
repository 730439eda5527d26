// SPDX-License-Identifier: GPL-3.0-or-later
// The verb list.
#include "app/logic/verb_list.h"

#include <algorithm>

namespace odmiennik::app {

void VerbList::loadUserVerbs(UserVerbsFound found) {
  isFilling_ = false;
  entries_.clear();
  const bool hasVerbs = found.isFilePresent && found.storedCount >= 1;
  if (hasVerbs) entries_ = std::move(found.infinitives);
  enabled_ = {hasVerbs, hasVerbs, hasVerbs, hasVerbs, hasVerbs};
  selectFirst();
}

void VerbList::chooseUserVerbs(UserVerbsFound found) {
  loadUserVerbs(std::move(found));
  enableByEntries();
}

void VerbList::followUserVerbs(UserVerbsFound found) {
  const std::size_t place = selected_.value_or(0);
  const std::string verb(selectedVerb());
  chooseUserVerbs(std::move(found));
  if (entries_.empty()) return;
  const auto before =
      entries_.begin() + static_cast<std::ptrdiff_t>(std::min(place, entries_.size() - 1));
  const auto same = *before == verb ? before : std::ranges::find(entries_, verb);
  select(static_cast<std::size_t>((same == entries_.end() ? before : same) - entries_.begin()));
}

void VerbList::beginLetter() {
  entries_.clear();
  selected_.reset();
  enabled_.lstCzasowniki = false;
  isFilling_ = true;
}

void VerbList::finishLetter() {
  isFilling_ = false;
  enableByEntries();
  selectFirst();
}

// deliberate: cmdUsuń stays as it is; only loading the user's verbs and deleting set it.
void VerbList::enableByEntries() {
  const bool hasEntries = !entries_.empty();
  enabled_.lstCzasowniki = enabled_.cmdOdmień = hasEntries;
  enabled_.cmdEdytuj = enabled_.cmdDrukuj = hasEntries;
}

void VerbList::drop(std::string_view infinitive) {
  const auto place = entries_.begin() + static_cast<std::ptrdiff_t>(selected_.value_or(0));
  const auto before = std::count(entries_.begin(), place, infinitive);
  if (std::erase(entries_, infinitive) == 0) return;
  if (entries_.empty()) {
    selected_.reset();
    enabled_.cmdUsuń = enabled_.cmdOdmień = enabled_.cmdEdytuj = enabled_.cmdDrukuj = false;
  } else if (selected_) {
    selected_ = std::min(*selected_ - static_cast<std::size_t>(before), entries_.size() - 1);
  }
}

void VerbList::select(std::size_t entry) {
  selected_ = entry < entries_.size() ? std::optional(entry) : std::nullopt;
}

void VerbList::selectFirst() { select(0); }

std::string_view VerbList::selectedVerb() const {
  return selected_ ? std::string_view(entries_[*selected_]) : std::string_view();
}

Utf8Text VerbList::countLabel() const {
  return decimal(entries_.size()) + '/' + decimal(kListedVerbs);
}

}  // namespace odmiennik::app
