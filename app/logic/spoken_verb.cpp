// SPDX-License-Identifier: GPL-3.0-or-later
// A verb's information as a sentence.
#include "app/logic/spoken_verb.h"

#include "dictionary/verb_labels.h"

namespace odmiennik::app {
namespace {

using engine::Use;

std::string groupOf(engine::Group group, std::string_view label) {
  if (group == engine::Group::unknown) return "grupa nieznana";
  return (group == engine::Group::defective ? "" : "grupa ") + std::string(label);
}

bool isUsed(Use use) { return use != Use::unknown && use != Use::no; }

// A use may name its own auxiliary: "przechodni (être)".
std::string nameOf(std::string_view name, Use use) {
  if (use == Use::yes) return std::string(name);
  return std::string(name) + (use == Use::withAvoir ? " (avoir)" : " (être)");
}

std::string transitivity(Use transitive, Use intransitive) {
  if (transitive == Use::unknown && intransitive == Use::unknown) return "przechodniość nieznana";
  if (!isUsed(transitive) && !isUsed(intransitive)) return "ani przechodni, ani nieprzechodni";
  std::string uses = isUsed(transitive) ? nameOf("przechodni", transitive) : "";
  if (isUsed(transitive) && isUsed(intransitive)) uses += " i ";
  if (isUsed(intransitive)) uses += nameOf("nieprzechodni", intransitive);
  return uses;
}

}  // namespace

std::string spokenVerb(std::string_view infinitive, const engine::VerbInformation& information) {
  const dictionary::VerbLabels labels = dictionary::labelsOf(information);
  const bool isAuxiliaryKnown = information.auxiliary != engine::KnownAuxiliary::unknown;
  return std::string(infinitive) + ": " + groupOf(information.group, labels.group) +
         ", czasownik posiłkowy " + std::string(isAuxiliaryKnown ? labels.auxiliary : "nieznany") +
         ", " + transitivity(information.transitive, information.intransitive) + ".";
}

}  // namespace odmiennik::app
