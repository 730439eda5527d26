// SPDX-License-Identifier: GPL-3.0-or-later
// Today's norm.
#include "engine/norm.h"

#include <algorithm>

#include "engine/form_table.h"
#include "engine/norm_data.h"
#include "engine/string_table.h"

namespace odmiennik::engine {
namespace {

bool has(std::span<const std::string_view> list, std::string_view infinitive) {
  return std::ranges::find(list, infinitive) != list.end();
}

const NormParticiple* ownFeminineOf(std::string_view participle) {
  for (const NormParticiple& row : data::kNormParticiples)
    if (participle.ends_with(row.masculine)) return &row;
  return nullptr;
}

ParticipleForms withOwnFeminine(std::string_view participle, const NormParticiple& row) {
  const std::string stem(participle.substr(0, participle.size() - row.masculine.size()));
  const auto behindStem = [&](std::string_view end) { return stem + std::string(end); };
  return {behindStem(row.masculine), behindStem(row.feminine), behindStem(row.masculines),
          behindStem(row.feminines)};
}

// Beside a form that most letters of the feminine are those of, its end alone: "-te" of dissoute. A
// box has no room for more.
std::string besideMasculine(std::string_view stem, const NormParticiple& row) {
  constexpr std::ptrdiff_t kMost = 3;
  const auto shared = std::ranges::mismatch(row.masculine, row.feminine).in2 - row.feminine.begin();
  if (shared < kMost) return std::string(stem) + std::string(row.feminine);
  return "-" + std::string(row.feminine.substr(static_cast<std::size_t>(shared)));
}

AgreedParticiple agreedWithOwnFeminine(std::string_view participle, const NormParticiple& row) {
  const std::string_view stem = participle.substr(0, participle.size() - row.masculine.size());
  const ParticipleForms forms = withOwnFeminine(participle, row);
  const std::string feminine = besideMasculine(stem, row);
  const bool isPluralAlike = forms.masculine == forms.masculines;
  return {forms.masculine + "/" + feminine, forms.masculines + "/" + feminine + "s",
          forms.masculine + "/" + feminine + "(s)" + (isPluralAlike ? "" : "/" + forms.masculines)};
}

bool hasPluralAlready(std::string_view participle) {
  return participle.ends_with('s') || participle.ends_with('x');
}

}  // namespace

std::string_view normTextOf(int identifier) {
  const auto entry =
      std::ranges::lower_bound(data::kNormTexts, identifier, {}, &NormText::identifier);
  const bool isOwn = entry != data::kNormTexts.end() && entry->identifier == identifier;
  return isOwn ? entry->text : textOf(identifier);
}

std::span<const NormText> normTextsBetween(int first, int last) {
  const auto from = [](int identifier) {
    return std::ranges::lower_bound(data::kNormTexts, identifier, {}, &NormText::identifier);
  };
  return {from(first), from(last)};
}

bool isUsuallyWithEtre(std::string_view infinitive) { return has(data::kUsualEtre, infinitive); }

bool isParticipleInvariable(std::string_view infinitive) {
  return has(data::kInvariable, infinitive);
}

bool isImpersonalReflexive(std::string_view infinitive) {
  return has(data::kImpersonalReflexives, infinitive);
}

bool isOfThirdPersonOnly(std::string_view infinitive) {
  return has(data::kThirdPersonOnly, infinitive);
}

bool isUnelided(std::string_view form) {
  return std::ranges::any_of(
      data::kUnelided, [&](std::string_view beginning) { return form.starts_with(beginning); });
}

ParticipleForms participleForms(std::string_view participle) {
  if (const NormParticiple* row = ownFeminineOf(participle))
    return withOwnFeminine(participle, *row);
  const std::string masculine(participle);
  return {masculine, masculine + "e", hasPluralAlready(participle) ? masculine : masculine + "s",
          masculine + "es"};
}

AgreedParticiple agreed(std::string_view participle) {
  if (const NormParticiple* row = ownFeminineOf(participle))
    return agreedWithOwnFeminine(participle, *row);
  const std::string bare(participle);
  if (hasPluralAlready(participle)) return {bare + "(e)", bare + "(es)", bare + "(e, es)"};
  return {bare + "(e)", bare + "(e)s", bare + "(e)(s)"};
}

std::string agreedAlone(std::string_view participle) {
  if (!participle.ends_with(kAgreementMarker)) return std::string(participle);
  const std::string_view bare = withoutMarker(participle);
  const bool hasFeminine = bare.find_first_of(",;/") != std::string_view::npos;
  const bool isRegular = !hasFeminine && ownFeminineOf(bare) == nullptr;
  if (isRegular) return std::string(participle);
  if (hasFeminine) return std::string(bare);
  const ParticipleForms forms = participleForms(bare);
  return forms.masculine + "/" + forms.feminine;
}

}  // namespace odmiennik::engine
