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

void writeTense(FormTable& forms, int firstSlot, std::string_view stem, const Endings& endings) {
  for (int person = 0; person < kPersonCount; ++person)
    setTo(forms[firstSlot + person], stem, endings[static_cast<std::size_t>(person)]);
}

// Each variant of `text` ("a/b") loses `cut` letters and takes the ending.
void setVariants(std::string& target, std::string_view text, std::size_t cut,
                 std::string_view ending) {
  target.clear();
  for (auto slash = text.find('/'); slash != std::string_view::npos; slash = text.find('/')) {
    target.append(less(text.substr(0, slash), cut)).append(ending).append("/");
    text.remove_prefix(slash + 1);
  }
  target.append(less(text, cut)).append(ending);
}

// Derives the given persons of a tense from `source`, which loses `cut` letters.
void deriveTense(FormTable& forms, int firstSlot, std::string_view source, std::size_t cut,
                 std::initializer_list<int> persons, const Endings& endings) {
  const bool isDouble = source.find('/') != std::string_view::npos;
  for (const int person : persons) {
    const std::string_view ending = endings[static_cast<std::size_t>(person)];
    std::string& form = forms[firstSlot + person];
    isDouble ? setVariants(form, source, cut, ending) : setTo(form, less(source, cut), ending);
  }
}

bool losesItsFinalS(std::string_view form) {
  return form.ends_with("es") || form.ends_with("ës"_fr) || form.ends_with("és"_fr);
}

}  // namespace

void buildImperfect(FormTable& forms, std::string_view stem) {
  writeTense(forms, slot::kImperfect, stem, kImperfectEndings);
}

void buildFuture(FormTable& forms, std::string_view stem) {
  writeTense(forms, slot::kFuture, stem, kFutureEndings);
}

void buildImperative(FormTable& forms) {
  const std::string_view tu = forms[1];
  forms[slot::kImperative].assign(losesItsFinalS(tu) ? less(tu, 1) : tu);
  forms[slot::kImperative + 1].assign(forms[3]);
  forms[slot::kImperative + 2].assign(forms[4]);
}

void buildPresentSubjunctive(FormTable& forms) {
  constexpr Endings kEndings{"", "s", "", {}, {}, "nt"};
  deriveTense(forms, slot::kPresentSubjunctive, forms[5], 2, {0, 1, 2, 5}, kEndings);
  for (const int person : {3, 4})
    forms[slot::kPresentSubjunctive + person].assign(forms[slot::kImperfect + person]);
}

void buildConditional(FormTable& forms) {
  const std::string_view future = forms[slot::kFuture];
  if (future.empty()) return;
  deriveTense(forms, slot::kPresentConditional, future, 2, {0, 1, 2, 3, 4, 5}, kImperfectEndings);
}

void buildPastHistoric(FormTable& forms, std::optional<PastEndings> endings,
                       std::optional<std::string_view> base) {
  const std::string_view infinitive = forms[slot::kInfinitive];
  const PastEndings byInfinitive = infinitive.ends_with("er") ? PastEndings::a : PastEndings::i;
  const auto row = static_cast<std::size_t>(endings.value_or(byInfinitive)) - 1;
  writeTense(forms, slot::kPastHistoric, base.value_or(less(infinitive, 2)), kPastEndings[row]);
}

void buildPresentParticiple(FormTable& forms) {
  const std::string_view nous = forms[3];
  if (nous.empty()) return;
  setTo(forms[slot::kPresentParticiple], less(nous, 3), std::string_view("ant"));
}

void buildImperfectSubjunctive(FormTable& forms) {
  const std::string_view je = forms[slot::kPastHistoric];
  const std::string_view nous = forms[slot::kPastHistoric + 3];
  if (je.empty()) return;
  constexpr std::string_view kEndings[] = {"sse", "sses", "t", "ssions", "ssiez", "ssent"};
  // deliberate: il takes the circumflexed vowel of the nous form, the others the je form's.
  const std::string_view plainVowel = less(je, 1).substr(less(je, 2).size());
  const std::string_view nousVowel = less(nous, 3).substr(less(nous, 4).size());
  for (int person = 0; person < kPersonCount; ++person)
    setTo(forms[slot::kImperfectSubjunctive + person], less(je, 2),
          person == 2 ? nousVowel : plainVowel, kEndings[person]);
}

}  // namespace odmiennik::engine
