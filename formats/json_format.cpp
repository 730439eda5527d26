// SPDX-License-Identifier: GPL-3.0-or-later
// One JSON object a line, its keys in the contract's order.
#include <span>

#include "dictionary/verb_labels.h"
#include "engine/letters.h"
#include "formats/format.h"
#include "formats/json_text.h"

namespace odmiennik::formats {
namespace {

Utf8View nameOf(engine::Source source) {
  constexpr Utf8View kNames[] = {"none", "user", "builtin", "rule"};
  return kNames[static_cast<std::size_t>(source)];
}

void appendFlag(Utf8Text& out, Utf8View key, bool isSet) {
  out.append(key).append(isSet ? "true" : "false");
}

void appendUtf8(Utf8Text& out, Utf8View key, Utf8View text) {
  out.append(key);
  appendJsonUtf8(out, text);
}

void appendMessages(Utf8Text& out, const std::vector<Utf8Text>& messages) {
  out.append(R"(,"messages":[)");
  for (const Utf8Text& message : messages) {
    if (&message != &messages.front()) out.push_back(',');
    appendJsonUtf8(out, message);
  }
  out.push_back(']');
}

void appendLabels(Utf8Text& out, const dictionary::VerbLabels& labels) {
  appendUtf8(out, R"(,"labels":{"group":)", labels.group);
  appendUtf8(out, R"(,"transitive":)", labels.transitive);
  appendUtf8(out, R"(,"intransitive":)", labels.intransitive);
  appendUtf8(out, R"(,"auxiliary":)", labels.auxiliary);
  appendUtf8(out, R"(,"government":)", labels.government);
  out.push_back('}');
}

class JsonFormat final : public Format {
 public:
  void begin(Utf8Text&) override {}
  [[nodiscard]] bool answersBlankLines() const override { return true; }
  void append(Utf8Text& out, const Answer& answer) override {
    const engine::Conjugation& conjugation = answer.conjugation;
    appendUtf8(out, R"({"typed":)", answer.typed);
    appendTable(out, conjugation, answer.printed);
    appendLabels(out, dictionary::labelsOf(conjugation.information));
    appendFlag(out, R"(,"aux_checked":)", conjugation.flags.auxiliary == engine::kAvoir);
    appendFlag(out, R"(,"aux_enabled":)", conjugation.information.isAuxiliaryFree);
    appendMessages(out, answer.messages);
    appendFlag(out, R"(,"pronominal":)", answer.isPronominal);
    appendFlag(out, R"(,"impersonal":)", conjugation.flags.isImpersonal);
    appendFlag(out, R"(,"h_aspirate":)", conjugation.flags.hAspirate);
    appendUtf8(out, R"(,"source":)", nameOf(conjugation.source));
    appendUtf8(out, R"(,"model":)", conjugation.model);
    out.append("}\n");
  }

 private:
  void appendTable(Utf8Text& out, const engine::Conjugation& conjugation, const SlotChoice& slots) {
    appendForms(out, conjugation.forms, conjugation.shown, slots);
    appendFrench(out, R"(,"pronouns":)", conjugation.shown.pronouns);
    appendFrench(out, R"(,"captions":)", conjugation.shown.captions);
  }

  template <typename Texts>
  void appendFrench(Utf8Text& out, Utf8View key, const Texts& texts) {
    out.append(key);
    appendJsonArray(out, texts, room_);
  }

  // Slots and boxes side by side: most boxes show their slot whole, and its JSON is copied, which
  // is a tenth of an answer's instructions. What is not printed is empty: every slot keeps its
  // place.
  void appendForms(Utf8Text& out, const engine::FormTable& forms, const engine::Display& shown,
                   const SlotChoice& chosen) {
    char* const slots = room_.of(roomForArray(forms));
    char* const boxes = boxRoom_.of(roomForArray(shown.boxes));
    char* slotEnd = slots;
    char* boxEnd = boxes;
    const bool areAllChosen = chosen.hasAll();
    for (int slot = 0; slot < engine::kSlotCount; ++slot) {
      const bool isChosen = areAllChosen || chosen.has(slot);
      const std::string_view form = isChosen ? forms[slot] : std::string_view{};
      const std::string_view box =
          isChosen ? shown.boxes[static_cast<std::size_t>(slot)] : std::string_view{};
      *slotEnd++ = *boxEnd++ = slot == 0 ? '[' : ',';
      const char* const written = slotEnd;
      slotEnd = writeJsonFrench(slotEnd, form);
      const bool isSame = box.data() == form.data() && box.size() == form.size();
      boxEnd =
          isSame ? engine::copyLetters(boxEnd, {written, slotEnd}) : writeJsonFrench(boxEnd, box);
    }
    out.append(R"(,"slots":)").append(slots, static_cast<std::size_t>(slotEnd - slots));
    out.append(R"(],"boxes":)").append(boxes, static_cast<std::size_t>(boxEnd - boxes));
    out.push_back(']');
  }

  JsonRoom room_, boxRoom_;
};

}  // namespace

std::unique_ptr<Format> makeJsonFormat(bool) { return std::make_unique<JsonFormat>(); }

}  // namespace odmiennik::formats
