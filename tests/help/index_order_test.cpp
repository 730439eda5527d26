// SPDX-License-Identifier: GPL-3.0-or-later
// The index is looked through by eye, so it stands as a Polish reader expects it.
#include <gtest/gtest.h>

#include <algorithm>

#include "engine/windows1252.h"
#include "tests/support/utf8_printing.h"
#include "tools/build_help/contents.h"

namespace odmiennik::help {
namespace {

constexpr std::u32string_view kAlphabet = U"aąbcćdeęfghijklłmnńoópqrsśtuvwxyzźż";
constexpr std::u32string_view kFrench = U"àâäçéèêëîïôùûüÉÊ";
constexpr std::u32string_view kPlain = U"aaaceeeeiiouuuee";
static_assert(kFrench.size() == kPlain.size());

// French letters stand with their Polish neighbours: "être" among the words in e.
char32_t plainLetter(char32_t letter) {
  if (letter >= U'A' && letter <= U'Z') return letter - U'A' + U'a';
  const auto at = kFrench.find(letter);
  return at == std::u32string_view::npos ? letter : kPlain[at];
}

// Blanks, then numbers by their value, then letters; other signs do not count.
std::vector<std::size_t> orderOf(Utf8View keyword) {
  constexpr std::size_t kLetters = 1000;
  std::vector<std::size_t> order;
  bool isNumber = false;
  while (!keyword.empty()) {
    const engine::DecodedCodePoint read = engine::decodeUtf8(keyword);
    keyword.remove_prefix(static_cast<std::size_t>(std::max(read.length, 1)));
    const bool isDigit = read.value >= U'0' && read.value <= U'9';
    const auto letter = kAlphabet.find(plainLetter(read.value));
    if (isDigit)
      order.push_back((isNumber ? order.back() * 10 : 1) + read.value - U'0');
    else if (read.value == U' ')
      order.push_back(0);
    else if (letter != std::u32string_view::npos)
      order.push_back(kLetters + letter);
    if (isDigit && isNumber) order.erase(order.end() - 2);
    isNumber = isDigit;
  }
  return order;
}

TEST(index_order, numbers_count_by_their_value_and_accents_not_at_all) {
  EXPECT_LT(orderOf("F6"), orderOf("F10"));
  EXPECT_LT(orderOf("passé 1re forme"), orderOf("passé 2e forme"));
  EXPECT_LT(orderOf("elizja"), orderOf("être"));
  EXPECT_LT(orderOf("czas"), orderOf("ćwiczenia"));
}

TEST(index_order, the_index_is_in_polish_alphabetical_order) {
  const auto index = tools::readHelpContents(ODMIENNIK_SOURCE_DIR "/help").index;
  for (std::size_t at = 1; at < index.size(); ++at)
    EXPECT_LE(orderOf(index[at - 1].keyword), orderOf(index[at].keyword))
        << index[at - 1].keyword << " before " << index[at].keyword;
}

}  // namespace
}  // namespace odmiennik::help
