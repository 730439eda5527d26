// SPDX-License-Identifier: GPL-3.0-or-later
// The single words that a conjugation holds, each with its place.
#pragma once

#include <string>
#include <vector>

#include "engine/conjugation.h"
#include "finder/places.h"

namespace odmiennik::finder {

struct BareForm {
  std::string text;  // Windows-1252, without any pronoun
  Places places = 0;
};

// The words of a conjugation that has been displayed: either half of a double form, without
// reflexive pronouns, the participle in all its agreements; words that stand at several places come
// once. Buffers are reused from one call to the next.
class BareForms {
 public:
  // What slots hold of `conjugation`.
  void read(const engine::Conjugation& conjugation);

  [[nodiscard]] const std::vector<BareForm>& all() const { return forms_; }
  // The compound slots that hold a form.
  [[nodiscard]] CompoundSlots compound() const { return compound_; }

 private:
  void add(std::string_view text, int place);
  void readSlot(int place, std::string_view text);
  void readParticiple(std::string_view text, bool isSystemAgreement);
  void addAgreed(std::string_view masculine, bool isSystemAgreement);

  std::vector<BareForm> forms_;
  CompoundSlots compound_ = 0;
};

}  // namespace odmiennik::finder
