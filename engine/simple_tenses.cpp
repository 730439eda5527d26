// SPDX-License-Identifier: GPL-3.0-or-later
// Builders of the simple tenses.
#include "engine/simple_tenses.h"

#include <array>
#include <initializer_list>

#include "engine/french.h"

namespace odmiennik::engine {
namespace {

using Endings = std::array<std::string_view, kPersonCount>;

constexpr Endings kImperfectEndings{"ais", "ais", "ait", "ions", "iez", "aient"};
constexpr Endings kFutureEndings{"ai", "as", "a", "ons", "ez", "ont"};
constexpr Endings kPastEndings[] = {
    {"ai", "as", "a", "âmes"_fr, "âtes"_fr, "èrent"_fr},
    {"is", "is", "it", "îmes"_fr, "îtes"_fr, "irent"},
    {"us", "us", "ut", "ûmes"_fr, "ûtes"_fr, "urent"},
};

template <typename Forms>
void writeTense(Forms& forms, int firstSlot, std::string_view base, const Endings& endings) {
  for (int person = 0; person < kPersonCount; ++person)
    put(forms, firstSlot + person, stem(base), ending(endings[static_cast<std::size_t>(person)]));
}

// Each variant of `text` ("a/b") loses `cut` letters and takes the ending.
template <typename Forms>
void putVariants(Forms& forms, int slot, std::string_view text, std::size_t cut,
                 std::string_view end) {
  beginForm(forms, slot);
  for (auto slash = text.find('/'); slash != std::string_view::npos; slash = text.find('/')) {
    append(forms, slot, stem(less(text.substr(0, slash), cut)));
    append(forms, slot, ending(end));
    append(forms, slot, {PieceKind::separator, "/"});
    text.remove_prefix(slash + 1);
  }
  append(forms, slot, stem(less(text, cut)));
  append(forms, slot, ending(end));
}

// Derives the given persons of a tense from the form of `from`, which loses `cut` letters.
template <typename Forms>
void deriveTense(Forms& forms, int firstSlot, int from, std::size_t cut,
                 std::initializer_list<int> persons, const Endings& endings) {
  const std::string_view source = forms[from];
  const bool isDouble = source.find('/') != std::string_view::npos;
  noteOrigin(forms, from, cut);
  for (const int person : persons) {
    const std::string_view end = endings[static_cast<std::size_t>(person)];
    isDouble ? putVariants(forms, firstSlot + person, source, cut, end)
             : put(forms, firstSlot + person, stem(less(source, cut)), ending(end));
  }
}

// A form as it stands in another slot, `cut` letters less.
template <typename Forms>
void takeOver(Forms& forms, int slot, int from, std::size_t cut = 0) {
  noteOrigin(forms, from, cut);
  copy(forms, slot, less(forms[from], cut));
}

bool losesItsFinalS(std::string_view form) {
  return form.ends_with("es") || form.ends_with("ës"_fr) || form.ends_with("és"_fr);
}

}  // namespace

template <typename Forms>
void buildImperfect(Forms& forms, std::string_view stem) {
  noteMaker(forms, Maker::imperfect);
  writeTense(forms, slot::kImperfect, stem, kImperfectEndings);
}

template <typename Forms>
void buildFuture(Forms& forms, std::string_view stem) {
  noteMaker(forms, Maker::future);
  writeTense(forms, slot::kFuture, stem, kFutureEndings);
}

template <typename Forms>
void buildImperative(Forms& forms) {
  noteMaker(forms, Maker::imperative);
  takeOver(forms, slot::kImperative, 1, losesItsFinalS(forms[1]) ? 1 : 0);
  takeOver(forms, slot::kImperative + 1, 3);
  takeOver(forms, slot::kImperative + 2, 4);
}

template <typename Forms>
void buildPresentSubjunctive(Forms& forms) {
  noteMaker(forms, Maker::presentSubjunctive);
  constexpr Endings kEndings{"", "s", "", {}, {}, "nt"};
  deriveTense(forms, slot::kPresentSubjunctive, 5, 2, {0, 1, 2, 5}, kEndings);
  for (const int person : {3, 4})
    takeOver(forms, slot::kPresentSubjunctive + person, slot::kImperfect + person);
}

template <typename Forms>
void buildConditional(Forms& forms) {
  if (forms[slot::kFuture].empty()) return;
  noteMaker(forms, Maker::conditional);
  deriveTense(forms, slot::kPresentConditional, slot::kFuture, 2, {0, 1, 2, 3, 4, 5},
              kImperfectEndings);
}

template <typename Forms>
void buildPastHistoric(Forms& forms, std::optional<PastEndings> endings,
                       std::optional<std::string_view> base) {
  const std::string_view infinitive = forms[slot::kInfinitive];
  const PastEndings byInfinitive = infinitive.ends_with("er") ? PastEndings::a : PastEndings::i;
  const auto row = static_cast<std::size_t>(endings.value_or(byInfinitive)) - 1;
  if (!base) noteOrigin(forms, slot::kInfinitive, 2);
  noteMaker(forms, Maker::pastHistoric);
  writeTense(forms, slot::kPastHistoric, base.value_or(less(infinitive, 2)), kPastEndings[row]);
}

template <typename Forms>
void buildPresentParticiple(Forms& forms) {
  const std::string_view nous = forms[3];
  if (nous.empty()) return;
  noteMaker(forms, Maker::presentParticiple);
  noteOrigin(forms, 3, 3);
  put(forms, slot::kPresentParticiple, stem(less(nous, 3)), ending("ant"));
}

template <typename Forms>
void buildImperfectSubjunctive(Forms& forms) {
  const std::string_view je = forms[slot::kPastHistoric];
  const std::string_view nous = forms[slot::kPastHistoric + 3];
  if (je.empty()) return;
  constexpr std::string_view kEndings[] = {"sse", "sses", "t", "ssions", "ssiez", "ssent"};
  // deliberate: il takes the circumflexed vowel of the nous form, the others the je form's.
  const std::string_view plainVowel = less(je, 1).substr(less(je, 2).size());
  const std::string_view nousVowel = less(nous, 3).substr(less(nous, 4).size());
  noteMaker(forms, Maker::imperfectSubjunctive);
  noteOrigin(forms, slot::kPastHistoric, 2);
  for (int person = 0; person < kPersonCount; ++person)
    put(forms, slot::kImperfectSubjunctive + person, stem(less(je, 2)),
        Part{PieceKind::vowel, person == 2 ? nousVowel : plainVowel}, ending(kEndings[person]));
}

#define INSTANTIATE(Forms)                                            \
  template void buildImperfect(Forms&, std::string_view);             \
  template void buildFuture(Forms&, std::string_view);                \
  template void buildImperative(Forms&);                              \
  template void buildPresentSubjunctive(Forms&);                      \
  template void buildConditional(Forms&);                             \
  template void buildPastHistoric(Forms&, std::optional<PastEndings>, \
                                  std::optional<std::string_view>);   \
  template void buildPresentParticiple(Forms&);                       \
  template void buildImperfectSubjunctive(Forms&);
INSTANTIATE(FormTable)
INSTANTIATE(TracedForms)
#undef INSTANTIATE

}  // namespace odmiennik::engine
