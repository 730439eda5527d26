// Reading of the verb-information record.
#include "engine/verb_information.h"

#include <array>
#include <span>

namespace odmiennik::engine {
namespace {

constexpr std::string_view kYes = "tak";
constexpr std::string_view kNo = "nie";
constexpr std::string_view kAvoirName = "avoir";
constexpr std::string_view kEtreName = "être";

// Codes "1", "2" … of a field and the texts that they show.
constexpr std::array<std::string_view, 4> kGroups{"pierwsza", "druga", "trzecia", "ułomny"};
constexpr std::array<std::string_view, 4> kUses{kYes, kNo, "tak, avoir", "tak, être"};

struct AuxiliaryRow {
  std::string_view label;
  std::uint8_t auxiliary;
  bool mayBeSwitched;
};
constexpr std::array<AuxiliaryRow, 3> kAuxiliaries{
    {{kAvoirName, kAvoir, false}, {kEtreName, kEtre, false}, {"avoir lub être", kAvoir, true}}};

// The row that a one-digit code selects, or nullptr for any other text.
template <typename Row, std::size_t Count>
const Row* rowOfCode(std::string_view code, const std::array<Row, Count>& rows) {
  if (code.size() != 1 || code[0] < '1') return nullptr;
  const auto position = static_cast<std::size_t>(code[0] - '1');
  return position < Count ? &rows[position] : nullptr;
}

void show(std::string_view code, const std::array<std::string_view, 4>& texts,
          std::string_view& label) {
  if (const std::string_view* text = rowOfCode(code, texts)) label = *text;
}

void applyAuxiliary(std::string_view code, EngineFlags& flags, VerbInformation& information) {
  const AuxiliaryRow* row = rowOfCode(code, kAuxiliaries);
  if (row == nullptr) return;
  information.labels.lblPosiłkowyWartość = row->label;
  information.chkZAvoir.isEnabled = row->mayBeSwitched;
  setAuxiliary(row->auxiliary, flags, information);
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

void setAuxiliary(std::uint8_t auxiliary, EngineFlags& flags, VerbInformation& information) {
  flags.auxiliary = auxiliary;
  information.chkZAvoir.isChecked = auxiliary == kAvoir;
}

std::string_view auxiliaryName(std::uint8_t auxiliary) {
  return auxiliary == kAvoir ? kAvoirName : kEtreName;
}

void applyRecord(std::string_view record, EngineFlags& flags, VerbInformation& information) {
  if (record.empty()) {
    information.labels = {};
    information.chkZAvoir.isEnabled = true;
    return;
  }
  const auto firstBar = record.find('|');
  if (firstBar == std::string_view::npos) return;
  VerbLabels& labels = information.labels;
  show(record.substr(firstBar + 1, 1), kGroups, labels.lblGrupaWartość);
  // By position: the group is one character, so the next field starts three behind the bar.
  std::string_view rest = record.substr(std::min(firstBar + 3, record.size()));
  std::string_view field;
  if (!takeField(rest, field)) return show(field, kUses, labels.lblPrzechodniWartość);
  show(field, kUses, labels.lblPrzechodniWartość);
  const bool hasAuxiliary = takeField(rest, field);
  show(field, kUses, labels.lblNieprzechodniWartość);
  if (!hasAuxiliary) return;
  const bool hasFlags = takeField(rest, field);
  applyAuxiliary(field, flags, information);
  if (hasFlags) applyFlags(record, flags);
}

void applyPronominal(EngineFlags& flags, VerbInformation& information) {
  information.labels.lblPrzechodniWartość = kNo;
  information.labels.lblNieprzechodniWartość = kNo;
  information.labels.lblPosiłkowyWartość = kEtreName;
  setAuxiliary(kEtre, flags, information);
}

void applyStoredVerb(EngineFlags& flags, VerbInformation& information) {
  information.labels = {};
  information.labels.lblPosiłkowyWartość = auxiliaryName(flags.auxiliary);
  information.chkZAvoir.isEnabled = true;
  setAuxiliary(flags.auxiliary, flags, information);
}

}  // namespace odmiennik::engine
