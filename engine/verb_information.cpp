// SPDX-License-Identifier: GPL-3.0-or-later
// Reading of the verb-information record.
#include "engine/verb_information.h"

#include <algorithm>

namespace odmiennik::engine {
namespace {

// A field's codes "1", "2" … are the values behind `unknown`; any other text changes nothing.
template <typename Value>
bool take(std::string_view code, Value last, Value& value) {
  const int number = code.size() == 1 ? code[0] - '0' : 0;
  if (number < 1 || number > static_cast<int>(last)) return false;
  value = static_cast<Value>(number);
  return true;
}

void takeUse(std::string_view code, Use& use) { take(code, Use::withEtre, use); }

void takeAuxiliary(std::string_view code, EngineFlags& flags, VerbInformation& information) {
  if (!take(code, KnownAuxiliary::either, information.auxiliary)) return;
  information.isAuxiliaryFree = information.auxiliary == KnownAuxiliary::either;
  flags.auxiliary = information.auxiliary == KnownAuxiliary::etre ? kEtre : kAvoir;
}

void applyFlags(std::string_view record, EngineFlags& flags) {
  if (record.front() == 'h')
    flags.hAspirate = true;
  else if (record.back() == '1')
    flags.isImpersonal = true;
  else if (record.back() == '2')
    flags.isPronominal = true;
}

// Takes the text up to the next "|" off the front of `rest`; says whether there was a "|".
bool takeField(std::string_view& rest, std::string_view& field) {
  const auto bar = rest.find('|');
  field = rest.substr(0, bar);
  rest = bar == std::string_view::npos ? std::string_view{} : rest.substr(bar + 1);
  return bar != std::string_view::npos;
}

}  // namespace

void applyRecord(std::string_view record, EngineFlags& flags, VerbInformation& information) {
  if (record.empty()) {
    information = {};
    return;
  }
  const auto firstBar = record.find('|');
  if (firstBar == std::string_view::npos) return;
  take(record.substr(firstBar + 1, 1), Group::defective, information.group);
  // By position: the group is one character, so the next field starts three behind the bar.
  std::string_view rest = record.substr(std::min(firstBar + 3, record.size()));
  std::string_view field;
  const bool hasIntransitive = takeField(rest, field);
  takeUse(field, information.transitive);
  if (!hasIntransitive) return;
  const bool hasAuxiliary = takeField(rest, field);
  takeUse(field, information.intransitive);
  if (!hasAuxiliary) return;
  const bool hasFlags = takeField(rest, field);
  takeAuxiliary(field, flags, information);
  if (hasFlags) applyFlags(record, flags);
}

void applyPronominal(EngineFlags& flags, VerbInformation& information) {
  information.transitive = information.intransitive = Use::no;
  information.auxiliary = KnownAuxiliary::etre;
  flags.auxiliary = kEtre;
}

void applyStoredVerb(const EngineFlags& flags, VerbInformation& information) {
  information = {};
  information.auxiliary = flags.auxiliary == kAvoir ? KnownAuxiliary::avoir : KnownAuxiliary::etre;
}

}  // namespace odmiennik::engine
