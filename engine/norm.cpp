// SPDX-License-Identifier: GPL-3.0-or-later
// Today's norm.
#include "engine/norm.h"

#include <algorithm>

#include "engine/norm_data.h"
#include "engine/string_table.h"

namespace odmiennik::engine {
namespace {

constexpr std::string_view kAgreement = "(e)";

bool has(std::span<const std::string_view> list, std::string_view infinitive) {
  return std::ranges::find(list, infinitive) != list.end();
}

const NormParticiple* ownFeminineOf(std::string_view participle) {
  for (const NormParticiple& row : data::kNormParticiples)
    if (participle.ends_with(row.masculine)) return &row;
  return nullptr;
}

std::string joined(std::string_view stem, std::string_view first, std::string_view second) {
  std::string text(stem);
  return text.append(first).append("/").append(stem).append(second);
}

AgreedParticiple withOwnFeminine(std::string_view participle, const NormParticiple& row) {
  const std::string_view stem = participle.substr(0, participle.size() - row.masculine.size());
  AgreedParticiple agreed{
      joined(stem, row.masculine, row.feminine), joined(stem, row.masculines, row.feminines), {}};
  agreed.either = agreed.one + "/" + agreed.several;
  return agreed;
}

}  // namespace

std::string_view normTextOf(int identifier) {
  const auto entry =
      std::ranges::lower_bound(data::kNormTexts, identifier, {}, &NormText::identifier);
  const bool isOwn = entry != data::kNormTexts.end() && entry->identifier == identifier;
  return isOwn ? entry->text : textOf(identifier);
}

bool isUsuallyWithEtre(std::string_view infinitive) { return has(data::kUsualEtre, infinitive); }

bool isParticipleInvariable(std::string_view infinitive) {
  return has(data::kInvariable, infinitive);
}

bool isImpersonalReflexive(std::string_view infinitive) {
  return has(data::kImpersonalReflexives, infinitive);
}

AgreedParticiple agreed(std::string_view participle) {
  if (const NormParticiple* row = ownFeminineOf(participle))
    return withOwnFeminine(participle, *row);
  const std::string bare(participle);
  const bool isAlike = participle.ends_with('s') || participle.ends_with('x');
  if (isAlike) return {bare + "(e)", bare + "(es)", bare + "(e, es)"};
  return {bare + "(e)", bare + "(e)s", bare + "(e)(s)"};
}

std::string agreedAlone(std::string_view participle) {
  if (!participle.ends_with(kAgreement)) return std::string(participle);
  const std::string_view bare = participle.substr(0, participle.size() - kAgreement.size());
  const bool hasFeminine = bare.find_first_of(",;/") != std::string_view::npos;
  const bool isRegular = !hasFeminine && ownFeminineOf(bare) == nullptr;
  if (isRegular) return std::string(participle);
  return hasFeminine ? std::string(bare) : agreed(bare).one;
}

}  // namespace odmiennik::engine
