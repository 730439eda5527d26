// SPDX-License-Identifier: GPL-3.0-or-later
// One JSON object a line, its keys in the contract's order.
#include <span>

#include "cli/format.h"
#include "cli/json_text.h"
#include "dictionary/verb_labels.h"

namespace odmiennik::cli {
namespace {

Utf8View nameOf(engine::Source source) {
  constexpr Utf8View kNames[] = {"none", "user", "builtin", "rule"};
  return kNames[static_cast<std::size_t>(source)];
}

void appendKey(Utf8Text& out, Utf8View key) { out.append(",\"").append(key).append("\":"); }

void appendUtf8(Utf8Text& out, Utf8View key, Utf8View text) {
  appendKey(out, key);
  appendJsonUtf8(out, text);
}

void appendFlag(Utf8Text& out, Utf8View key, bool isSet) {
  appendKey(out, key);
  out.append(isSet ? "true" : "false");
}

// An array of texts, each written by `appendText`.
template <typename Texts, typename View>
void appendArray(Utf8Text& out, Utf8View key, const Texts& texts,
                 void (*appendText)(Utf8Text&, View)) {
  appendKey(out, key);
  char before = '[';
  for (const auto& text : texts) {
    out.push_back(before);
    appendText(out, text);
    before = ',';
  }
  out.append(before == '[' ? "[]" : "]");
}

void appendLabels(Utf8Text& out, const dictionary::VerbLabels& labels) {
  out.append(",\"labels\":{\"group\":");
  appendJsonUtf8(out, labels.group);
  appendUtf8(out, "transitive", labels.transitive);
  appendUtf8(out, "intransitive", labels.intransitive);
  appendUtf8(out, "auxiliary", labels.auxiliary);
  appendUtf8(out, "government", labels.government);
  out.push_back('}');
}

class JsonFormat final : public Format {
 public:
  void begin(Utf8Text&) override {}
  void append(Utf8Text& out, const Answer& answer) override {
    const engine::Conjugation& conjugation = answer.conjugation;
    out.append("{\"typed\":");
    appendJsonUtf8(out, answer.typed);
    appendTable(out, conjugation);
    appendLabels(out, dictionary::labelsOf(conjugation.information));
    appendFlag(out, "aux_checked", conjugation.flags.auxiliary == engine::kAvoir);
    appendFlag(out, "aux_enabled", conjugation.information.isAuxiliaryFree);
    appendArray(out, "messages", answer.messages, appendJsonUtf8);
    appendFlag(out, "pronominal", answer.isPronominal);
    appendFlag(out, "impersonal", conjugation.flags.isImpersonal);
    appendFlag(out, "h_aspirate", conjugation.flags.hAspirate);
    appendUtf8(out, "source", nameOf(conjugation.source));
    appendUtf8(out, "model", conjugation.model);
    out.append("}\n");
  }

 private:
  static void appendTable(Utf8Text& out, const engine::Conjugation& conjugation) {
    appendArray(out, "slots", conjugation.forms, appendJsonFrench);
    appendArray(out, "boxes", conjugation.shown.boxes, appendJsonFrench);
    appendArray(out, "pronouns", conjugation.shown.pronouns, appendJsonFrench);
    appendArray(out, "captions", conjugation.shown.captions, appendJsonFrench);
  }
};

}  // namespace

std::unique_ptr<Format> makeJsonFormat(bool) { return std::make_unique<JsonFormat>(); }

}  // namespace odmiennik::cli
