// SPDX-License-Identifier: GPL-3.0-or-later
// The forms of the user's own verbs.
#include "finder/own_verbs.h"

#include <algorithm>

#include "engine/normalization.h"
#include "engine/text_hash.h"
#include "finder/letters.h"

namespace odmiennik::finder {
namespace {

// Gives the engine the one record that has just been read.
class GivenVerb final : public engine::UserVerbs {
 public:
  void give(const engine::FormTable& forms, std::uint8_t auxiliary) {
    forms_ = &forms;
    auxiliary_ = auxiliary;
  }
  [[nodiscard]] bool load(std::string_view, engine::FormTable& forms,
                          std::uint8_t& storedAux) override {
    forms = *forms_;
    storedAux = auxiliary_;
    return true;
  }

 private:
  const engine::FormTable* forms_ = nullptr;
  std::uint8_t auxiliary_ = engine::kAvoir;
};

std::uint32_t hashOf(std::string_view form) {
  std::string lower(form);
  engine::lowerCase(lower);
  return engine::textHash(Folded(lower).text());
}

}  // namespace

OwnVerbs::OwnVerbs(dictionary::UserVerbsFile& userVerbs)
    : userVerbs_(userVerbs), driver_({index_, userVerbs_, builtinVerbs_, rules_, shell_}) {}

void OwnVerbs::lookAgain() {
  userVerbs_.lookAgain();
  texts_.clear();
  if (userVerbs_.version() == version_) return;
  version_ = userVerbs_.version();
  verbs_.clear();
  keys_.clear();
  entries_.clear();
  read();
  std::ranges::sort(entries_);
  const auto repeated = std::ranges::unique(entries_);
  entries_.erase(repeated.begin(), repeated.end());
}

// The system's forms of an own verb are the norm's as well, the agreement of the participle apart.
void OwnVerbs::read() {
  GivenVerb given;
  std::set<std::string> known;
  engine::Driver driver({index_, given, builtinVerbs_, rules_, shell_});
  conjugation_.variety = engine::Variety::system;
  userVerbs_.forEach([&](const engine::FormTable& forms, std::uint8_t auxiliary) {
    given.give(forms, auxiliary);
    const std::string kept = engine::keptInfinitive(forms[engine::slot::kInfinitive]);
    if (driver.conjugate(conjugation_, kept) != engine::Outcome::conjugated) return;
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

const std::vector<BareForm>& OwnVerbs::formsOf(std::uint32_t verb, engine::Variety variety) {
  conjugation_.variety = variety;
  static_cast<void>(driver_.conjugate(conjugation_, verbs_[verb]));
  bare_.read(conjugation_);
  return bare_.all();
}

void OwnVerbs::append(std::uint32_t verb, std::string_view folded, std::vector<Candidate>& found) {
  const std::string_view kept = verbs_[verb];
  Candidate candidate{.verb = engine::withoutReflexivePrefix(kept), .isOwn = true};
  candidate.facts = {.takesAvoir = true,
                     .takesEtre = true,
                     .isPronominal = engine::hasReflexivePrefix(kept),
                     .agrees = true};
  const std::size_t first = found.size();
  for (const engine::Variety variety : {engine::Variety::system, engine::Variety::norm}) {
    const bool isNorm = variety == engine::Variety::norm;
    for (const BareForm& form : formsOf(verb, variety)) {
      std::string lower = form.text;
      engine::lowerCase(lower);
      if (Folded(lower).text() != folded) continue;
      candidate.stem = *texts_.insert(form.text).first;
      auto known = std::find_if(found.begin() + static_cast<std::ptrdiff_t>(first), found.end(),
                                [&](const Candidate& one) { return one.stem == candidate.stem; });
      if (known == found.end()) known = found.insert(found.end(), candidate);
      (isNorm ? known->places.norm : known->places.system) = form.places;
    }
    for (std::size_t i = first; i < found.size(); ++i)
      (isNorm ? found[i].facts.norm : found[i].facts.system) = bare_.compound();
  }
}

}  // namespace odmiennik::finder
