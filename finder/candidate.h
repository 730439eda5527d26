// SPDX-License-Identifier: GPL-3.0-or-later
// A verb that has a word among its forms, before it is asked which of its places fit the phrase.
#pragma once

#include <cstdint>
#include <string_view>

#include "finder/form_index_data.h"
#include "finder/reading.h"

namespace odmiennik::finder {

struct Candidate {
  std::string_view verb;  // without its reflexive pronoun
  std::string_view stem;  // the form is stem and ending
  std::string_view ending;
  data::PlacesOfForm places{};
  data::Paradigm facts{};
  std::uint16_t rank = kUnranked;
  bool isOwn = false;
  Match match = Match::exact;

  void appendForm(std::string& out) const { out.append(stem).append(ending); }
};

}  // namespace odmiennik::finder
