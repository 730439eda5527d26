// SPDX-License-Identifier: GPL-3.0-or-later
// The verbs of the index by paradigms, as the engine conjugates them.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "finder/form_index_data.h"

namespace odmiennik::tools {

// An ending at a stem and where the form stands, in either variety.
using SourceEndings = std::map<std::string, finder::data::PlacesOfForm>;

struct SourceParadigm {
  SourceEndings endings;  // Windows-1252
  finder::data::Paradigm facts{};
};

struct SourceVerb {
  std::string infinitive;
  std::size_t stemSize = 0;
  std::uint32_t paradigm = 0;
};

struct SourceForms {
  std::vector<SourceParadigm> paradigms;
  std::vector<SourceVerb> verbs;  // in the order of the verb index
};

// Conjugates every verb of the index in both varieties.
[[nodiscard]] SourceForms paradigmsOfIndex();

}  // namespace odmiennik::tools
