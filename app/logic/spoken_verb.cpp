// A verb's information as a sentence.
#include "app/logic/spoken_verb.h"

namespace odmiennik::app {
namespace {

std::string known(std::string_view label) {
  return label == engine::kNoData ? "nieznany" : std::string(label);
}

std::string group(std::string_view label) {
  if (label == engine::kNoData) return "grupa nieznana";
  return (label == "ułomny" ? "" : "grupa ") + std::string(label);
}

// A use may name its own auxiliary: "tak, être" -> "przechodni (être)".
std::string use(std::string_view name, std::string_view label) {
  const auto comma = label.find(", ");
  if (comma == std::string_view::npos) return std::string(name);
  return std::string(name) + " (" + std::string(label.substr(comma + 2)) + ")";
}

std::string transitivity(std::string_view transitive, std::string_view intransitive) {
  if (transitive == engine::kNoData && intransitive == engine::kNoData)
    return "przechodniość nieznana";
  const bool isTransitive = transitive.starts_with("tak");
  const bool isIntransitive = intransitive.starts_with("tak");
  if (!isTransitive && !isIntransitive) return "ani przechodni, ani nieprzechodni";
  std::string uses = isTransitive ? use("przechodni", transitive) : "";
  if (isTransitive && isIntransitive) uses += " i ";
  if (isIntransitive) uses += use("nieprzechodni", intransitive);
  return uses;
}

}  // namespace

std::string spokenVerb(std::string_view infinitive, const engine::VerbLabels& labels) {
  return std::string(infinitive) + ": " + group(labels.lblGrupaWartość) + ", czasownik posiłkowy " +
         known(labels.lblPosiłkowyWartość) + ", " +
         transitivity(labels.lblPrzechodniWartość, labels.lblNieprzechodniWartość) + ".";
}

}  // namespace odmiennik::app
