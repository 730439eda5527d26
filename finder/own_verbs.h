// SPDX-License-Identifier: GPL-3.0-or-later
// The forms of the user's own verbs, indexed once for each change of their file.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "dictionary/builtin_verbs.h"
#include "dictionary/user_verbs.h"
#include "dictionary/verb_index.h"
#include "engine/driver.h"
#include "finder/bare_forms.h"
#include "finder/candidate.h"
#include "groups/rules.h"

namespace odmiennik::finder {

class OwnVerbs {
 public:
  explicit OwnVerbs(dictionary::UserVerbsFile& userVerbs);

  // Reads the user's verbs anew when their file has changed since the last look.
  void lookAgain();

  // Whether the user has a verb of this infinitive, which is given without reflexive pronoun: his
  // own is then the one that counts.
  [[nodiscard]] bool has(std::string_view verb) const { return keys_.contains(verb); }

  // Appends the own verbs that have the word `folded` (without accents) among their forms. The
  // texts hold until the next call of lookAgain().
  void find(std::string_view folded, std::vector<Candidate>& found);

 private:
  // A form by its hash; whether it is one is asked of the engine.
  struct Entry {
    std::uint32_t hash;
    std::uint32_t verb;
    auto operator<=>(const Entry&) const = default;
  };

  // Gives the engine the one record that has just been read.
  class GivenVerb final : public engine::UserVerbs {
   public:
    [[nodiscard]] bool load(std::string_view, engine::FormTable& forms,
                            std::uint8_t& storedAux) override {
      forms = *record;
      storedAux = auxiliary;
      return true;
    }
    const engine::FormTable* record = nullptr;
    std::uint8_t auxiliary = engine::kAvoir;
  };

  // The words of a verb, and those of their compound slots that hold a form.
  struct Known {
    std::vector<BareForm> forms;
    engine::Variety variety;
    CompoundSlots compound;
  };
  // In the system's forms and in the norm's.
  using KnownVerb = std::array<Known, 2>;

  class SilentShell final : public engine::Shell {
   public:
    void show(engine::Notice) override {}
    void resetSettings() override {}
  };

  void read();
  void append(std::uint32_t verb, std::string_view folded, std::vector<Candidate>& found);
  const KnownVerb& formsOf(std::uint32_t verb);

  dictionary::UserVerbsFile& userVerbs_;
  dictionary::GeneralVerbIndex index_;
  dictionary::BuiltinVerbTable builtinVerbs_;
  groups::VerbGroups rules_;
  SilentShell shell_;
  GivenVerb given_;
  engine::FormTable record_;
  engine::Driver driver_;
  engine::Conjugation conjugation_;
  BareForms bare_;
  std::uint64_t version_ = 0;       // of the file as it was read
  std::vector<std::string> verbs_;  // as they are kept
  std::set<std::string, std::less<>> keys_;
  std::vector<Entry> entries_;   // sorted
  std::set<std::string> texts_;  // of the forms found since the last look
  // Verbs that were found: while one types the same few are asked for again and again, and opening
  // the file takes longer than everything else.
  std::map<std::uint32_t, KnownVerb> known_;
};

}  // namespace odmiennik::finder
