// SPDX-License-Identifier: GPL-3.0-or-later
// The forms of the user's own verbs.
#include "finder/own_verbs.h"

#include <algorithm>

#include "engine/normalization.h"
#include "engine/text_hash.h"
#include "finder/letters.h"

namespace odmiennik::finder {
namespace {

constexpr std::size_t kMostKnown = 64;

std::uint32_t hashOf(std::string_view form) {
  std::string lower(form);
  engine::lowerCase(lower);
  return engine::textHash(Folded(lower).text());
}

// Whether the form is that word in small letters and without accents.
bool foldsTo(std::string_view form, std::string_view folded) {
  if (form.size() > folded.size()) return false;  // accents take no room away
  std::string lower(form);
  engine::lowerCase(lower);
  return Folded(lower).text() == folded;
}

}  // namespace

OwnVerbs::OwnVerbs(dictionary::UserVerbsFile& userVerbs)
    : userVerbs_(userVerbs), driver_({index_, given_, builtinVerbs_, rules_, shell_}) {}

void OwnVerbs::lookAgain() {
  userVerbs_.lookAgain();
  texts_.clear();
  if (userVerbs_.version() == version_) return;
  version_ = userVerbs_.version();
  known_.clear();
  verbs_.clear();
  keys_.clear();
  entries_.clear();
  read();
  std::ranges::sort(entries_);
  entries_.erase(std::unique(entries_.begin(), entries_.end()), entries_.end());
}

// The system's forms of an own verb are the norm's as well, the agreement of the participle apart.
void OwnVerbs::read() {
  std::set<std::string> known;
  conjugation_.variety = engine::Variety::system;
  userVerbs_.forEach([&](const engine::FormTable& forms, std::uint8_t auxiliary) {
    given_.record = &forms;
    given_.auxiliary = auxiliary;
    const std::string kept = engine::keptInfinitive(forms[engine::slot::kInfinitive]);
    if (driver_.conjugate(conjugation_, kept) != engine::Outcome::conjugated) return;
    keys_.insert(engine::lookupKey(kept));
    std::string whole;
    engine::normalize(kept, whole);
    if (!known.insert(whole).second) return;  // the engine takes the first one
    const auto verb = static_cast<std::uint32_t>(verbs_.size());
    verbs_.push_back(kept);
    bare_.read(conjugation_);
    for (const BareForm& form : bare_.all()) entries_.push_back({hashOf(form.text), verb});
  });
}

void OwnVerbs::find(std::string_view folded, std::vector<Candidate>& found) {
  if (entries_.empty()) return;
  const std::uint32_t hash = engine::textHash(folded);
  auto entry = std::ranges::lower_bound(entries_, hash, {}, &Entry::hash);
  for (; entry != entries_.end() && entry->hash == hash; ++entry)
    append(entry->verb, folded, found);
}

// Of a verb that is no longer in the file there are no forms.
const OwnVerbs::KnownVerb& OwnVerbs::formsOf(std::uint32_t verb) {
  const auto found = known_.find(verb);
  if (found != known_.end()) return found->second;
  if (known_.size() == kMostKnown) known_.clear();
  KnownVerb& known = known_[verb];
  std::string whole;
  engine::normalize(verbs_[verb], whole);
  const bool isThere = userVerbs_.load(whole, record_, given_.auxiliary);
  given_.record = &record_;
  for (Known& one : known) {
    one.variety = &one == known.begin() ? engine::Variety::system : engine::Variety::norm;
    if (!isThere) continue;
    conjugation_.variety = one.variety;
    static_cast<void>(driver_.conjugate(conjugation_, verbs_[verb]));
    bare_.read(conjugation_);
    one.forms = bare_.all();
    one.compound = bare_.compound();
  }
  return known;
}

void OwnVerbs::append(std::uint32_t verb, std::string_view folded, std::vector<Candidate>& found) {
  const std::string_view kept = verbs_[verb];
  Candidate candidate{.verb = engine::withoutReflexivePrefix(kept), .isOwn = true};
  candidate.facts = {.takesAvoir = true,
                     .takesEtre = true,
                     .isPronominal = engine::hasReflexivePrefix(kept),
                     .agrees = true};
  const std::size_t first = found.size();
  for (const Known& known : formsOf(verb)) {
    const bool isNorm = known.variety == engine::Variety::norm;
    for (const BareForm& form : known.forms) {
      if (!foldsTo(form.text, folded)) continue;
      candidate.stem = *texts_.insert(form.text).first;
      auto same = std::find_if(found.begin() + static_cast<std::ptrdiff_t>(first), found.end(),
                               [&](const Candidate& one) { return one.stem == candidate.stem; });
      if (same == found.end()) same = found.insert(found.end(), candidate);
      (isNorm ? same->places.norm : same->places.system) = form.places;
    }
    for (std::size_t i = first; i < found.size(); ++i)
      (isNorm ? found[i].facts.norm : found[i].facts.system) = known.compound;
  }
}

}  // namespace odmiennik::finder
