// The 101 slots of a conjugation and the tenses they belong to: the central contract of the system.
#pragma once

#include <array>
#include <string_view>

namespace odmiennik::engine {

inline constexpr int kSlotCount = 101;
inline constexpr int kPersonCount = 6;
// Slots 0 to 89 belong to six-person tenses; the slots behind them carry no subject pronoun.
inline constexpr int kPersonalSlotCount = 90;

// The first slot of every tense, and the single slots.
namespace slot {
inline constexpr int kPresent = 0;
inline constexpr int kImperfect = 6;
inline constexpr int kPastHistoric = 12;
inline constexpr int kFuture = 18;
inline constexpr int kPerfect = 24;
inline constexpr int kPluperfect = 30;
inline constexpr int kPastAnterior = 36;
inline constexpr int kFuturePerfect = 42;
inline constexpr int kPresentSubjunctive = 48;
inline constexpr int kImperfectSubjunctive = 54;
inline constexpr int kPerfectSubjunctive = 60;
inline constexpr int kPluperfectSubjunctive = 66;
inline constexpr int kPresentConditional = 72;
inline constexpr int kPastConditional1 = 78;
inline constexpr int kPastConditional2 = 84;
inline constexpr int kImperative = 90;
inline constexpr int kPastImperative = 93;
inline constexpr int kInfinitive = 96;
inline constexpr int kPastInfinitive = 97;
inline constexpr int kPresentParticiple = 98;
inline constexpr int kPastParticiple = 99;
inline constexpr int kCompoundParticiple = 100;
}  // namespace slot

// A tense: its run of slots, the captions of the window, and its plain name ("présent").
struct Tense {
  int firstSlot;
  int slotCount;
  std::string_view moodCaption;
  std::string_view tenseCaption;
  std::string_view mood;
  std::string_view name;
};

// deliberate: "CONDITIONEL", "1-er forme" and "2-e forme" are the window's fixed captions.
inline constexpr std::array<Tense, 22> kTenses{{
    {0, 6, "INDICATIF", "Présent", "Indicatif", "présent"},
    {6, 6, "INDICATIF", "Imparfait", "Indicatif", "imparfait"},
    {12, 6, "INDICATIF", "Passé simple", "Indicatif", "passé simple"},
    {18, 6, "INDICATIF", "Futur simple", "Indicatif", "futur simple"},
    {24, 6, "INDICATIF", "Passé composé", "Indicatif", "passé composé"},
    {30, 6, "INDICATIF", "Plus-que-parfait", "Indicatif", "plus-que-parfait"},
    {36, 6, "INDICATIF", "Passé antérieur", "Indicatif", "passé antérieur"},
    {42, 6, "INDICATIF", "Futur antérieur", "Indicatif", "futur antérieur"},
    {48, 6, "SUBJONCTIF", "Présent", "Subjonctif", "présent"},
    {54, 6, "SUBJONCTIF", "Imparfait", "Subjonctif", "imparfait"},
    {60, 6, "SUBJONCTIF", "Passé", "Subjonctif", "passé"},
    {66, 6, "SUBJONCTIF", "Plus-que-parfait", "Subjonctif", "plus-que-parfait"},
    {72, 6, "CONDITIONEL", "Présent", "Conditionnel", "présent"},
    {78, 6, "CONDITIONEL", "Passé 1-er forme", "Conditionnel", "passé 1re forme"},
    {84, 6, "CONDITIONEL", "Passé 2-e forme", "Conditionnel", "passé 2e forme"},
    {90, 3, "IMPÉRATIF", "Présent", "Impératif", "présent"},
    {93, 3, "IMPÉRATIF", "Passé", "Impératif", "passé"},
    {96, 1, "INFINITIF", "Présent", "Infinitif", "présent"},
    {97, 1, "INFINITIF", "Passé", "Infinitif", "passé"},
    {98, 1, "PARTICIPE", "Présent", "Participe", "présent"},
    {99, 1, "PARTICIPE", "Passé", "Participe", "passé"},
    {100, 1, "PARTICIPE", "Passé composé", "Participe", "passé composé"},
}};

static_assert([] {
  int next = 0;
  for (const Tense& tense : kTenses) {
    if (tense.firstSlot != next) return false;
    next += tense.slotCount;
  }
  return next == kSlotCount;
}());

// The tense that slot `index` (0 to 100) belongs to: tenseOf(26).name is "passé composé".
[[nodiscard]] constexpr const Tense& tenseOf(int index) {
  for (const Tense& tense : kTenses)
    if (index < tense.firstSlot + tense.slotCount) return tense;
  return kTenses.back();
}

// The person of a slot ("je" … "ils"; the imperative has tu, nous, vous), empty where there is
// none.
[[nodiscard]] constexpr std::string_view personOf(int index) {
  constexpr std::string_view kPersons[] = {"je", "tu", "il", "nous", "vous", "ils"};
  constexpr std::string_view kImperativePersons[] = {"tu", "nous", "vous"};
  if (index < kPersonalSlotCount) return kPersons[index % kPersonCount];
  if (index < slot::kInfinitive) return kImperativePersons[index % 3];
  return {};
}

}  // namespace odmiennik::engine
