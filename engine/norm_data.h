// SPDX-License-Identifier: GPL-3.0-or-later
// The tables that the build makes of data/norm for the engine.
#pragma once

#include <span>
#include <string_view>

namespace odmiennik::engine {

// An entry of the string table as the norm has it (Windows-1252).
struct NormText {
  int identifier;
  std::string_view text;
};

// A participle that does not make its feminine with a mere e, by its ends.
struct NormParticiple {
  std::string_view masculine, feminine, masculines, feminines;
};

namespace data {
extern const std::span<const NormText> kNormTexts;  // by identifier
extern const std::span<const std::string_view> kUsualEtre;
extern const std::span<const std::string_view> kInvariable;
extern const std::span<const std::string_view> kImpersonalReflexives;
extern const std::span<const std::string_view> kThirdPersonOnly;
extern const std::span<const std::string_view> kUnelided;  // beginnings of forms
extern const std::span<const NormParticiple> kNormParticiples;
}  // namespace data

}  // namespace odmiennik::engine
