// SPDX-License-Identifier: GPL-3.0-or-later
// A verb's information as a sentence.
#include "app/logic/spoken_verb.h"

#include "dictionary/verb_labels.h"

namespace odmiennik::app {
namespace {

using engine::Use;

Utf8Text groupOf(engine::Group group, Utf8View label) {
  if (group == engine::Group::unknown) return "grupa nieznana";
  return (group == engine::Group::defective ? "" : "grupa ") + Utf8Text(label);
}

bool isUsed(Use use) { return use != Use::unknown && use != Use::no; }

// A use may name its own auxiliary: "przechodni (être)".
Utf8Text nameOf(Utf8View name, Use use) {
  if (use == Use::yes) return Utf8Text(name);
  return Utf8Text(name) + (use == Use::withAvoir ? " (avoir)" : " (être)");
}

Utf8Text transitivity(Use transitive, Use intransitive) {
  if (transitive == Use::unknown && intransitive == Use::unknown) return "przechodniość nieznana";
  if (!isUsed(transitive) && !isUsed(intransitive)) return "ani przechodni, ani nieprzechodni";
  Utf8Text uses = isUsed(transitive) ? nameOf("przechodni", transitive) : "";
  if (isUsed(transitive) && isUsed(intransitive)) uses += " i ";
  if (isUsed(intransitive)) uses += nameOf("nieprzechodni", intransitive);
  return uses;
}

}  // namespace

Utf8Text spokenVerb(Utf8View infinitive, const engine::VerbInformation& information) {
  const dictionary::VerbLabels labels = dictionary::labelsOf(information);
  const bool isAuxiliaryKnown = information.auxiliary != engine::KnownAuxiliary::unknown;
  return Utf8Text(infinitive) + ": " + groupOf(information.group, labels.group) +
         ", czasownik posiłkowy " + Utf8Text(isAuxiliaryKnown ? labels.auxiliary : "nieznany") +
         ", " + transitivity(information.transitive, information.intransitive) + ".";
}

}  // namespace odmiennik::app
