// SPDX-License-Identifier: GPL-3.0-or-later
// Accepted writings of a form.
#include "tests/help/form_check.h"

namespace odmiennik::help {
namespace {

constexpr std::string_view kAgreement = "(e)";

void addWritings(std::string form, std::vector<std::string>& writings) {
  const auto at = form.find(kAgreement);
  if (at == std::string::npos) {
    writings.push_back(std::move(form));
    return;
  }
  for (const char* letter : {"", "e"})
    addWritings(std::string(form).replace(at, kAgreement.size(), letter), writings);
}

}  // namespace

std::string plainForm(std::string_view form) {
  constexpr std::string_view kApostrophe = "’";
  std::string plain(form);
  for (auto at = plain.find(kApostrophe); at != std::string::npos; at = plain.find(kApostrophe))
    plain.replace(at, kApostrophe.size(), "'");
  const auto first = plain.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return plain.substr(first, plain.find_last_not_of(' ') - first + 1);
}

std::string insideSentence(std::string form) {
  if (!form.empty() && form[0] >= 'A' && form[0] <= 'Z') form[0] += 'a' - 'A';
  return form;
}

std::vector<std::string> acceptedWritings(std::string_view form) {
  std::vector<std::string> writings{plainForm(form)};
  std::string_view rest = form.substr(0, form.find(','));
  while (!rest.empty()) {
    const auto end = rest.find('/');
    addWritings(plainForm(rest.substr(0, end)), writings);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
  return writings;
}

}  // namespace odmiennik::help
