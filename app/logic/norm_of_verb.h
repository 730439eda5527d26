// SPDX-License-Identifier: GPL-3.0-or-later
// What today's norm says of the verb that is shown.
#pragma once

#include <array>
#include <string>

#include "app/logic/silent_shell.h"
#include "engine/driver.h"

namespace odmiennik::app {

// Conjugates the shown verb once more, in the norm, and keeps what differs. It asks nobody and
// shows no message; the user's own verbs are not looked at, since they are never compared.
class NormOfVerb {
 public:
  NormOfVerb(engine::VerbIndex& index, const engine::BuiltinVerbs& builtinVerbs,
             const engine::RuleSets& rules);

  // Compares with what is shown. Nothing departs of the norm itself, of a verb of the user's own
  // and where no verb is shown. An auxiliary that the user has chosen is the norm's too: of tomber
  // "ai tombé" departs, but not after a click on the auxiliary's box.
  void compareWith(const engine::Conjugation& shown, bool isAuxiliaryChosen);

  // Nothing departs from now on.
  void forget();

  // The norm's form of a box whose form departs (Windows-1252), with its pronoun where that departs
  // too: of (2) of lire "lit", of (0) of œuvrer "j'œuvre"; empty where nothing does. A form that
  // the norm lacks is " -- ".
  [[nodiscard]] const std::string& of(int slot) const {
    return departures_[static_cast<std::size_t>(slot)];
  }

  // The norm's text of a caption above a subjunctive, 0 to 3, that departs; else empty.
  [[nodiscard]] const std::string& ofCaption(int number) const {
    return captions_[static_cast<std::size_t>(number)];
  }

 private:
  struct NoUserVerbs final : engine::UserVerbs {
    bool load(std::string_view /*infinitive*/, engine::FormTable& /*forms*/,
              std::uint8_t& /*storedAux*/) override {
      return false;
    }
  };

  void compareSlots(const engine::Display& shown);
  void compareCaptions(const engine::Display& shown);

  NoUserVerbs noUserVerbs_;
  SilentShell silence_;
  engine::Driver driver_;
  engine::Conjugation norm_;
  std::array<std::string, engine::kSlotCount> departures_;
  std::array<std::string, std::tuple_size_v<engine::SubjunctiveCaptions>> captions_;
};

}  // namespace odmiennik::app
