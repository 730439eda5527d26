// SPDX-License-Identifier: GPL-3.0-or-later
// Cutting a line into fields.
#include "disk/fields.h"

#include <algorithm>

namespace odmiennik::disk {
namespace {

void dropLeadingBlanks(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
}

}  // namespace

bool FieldScanner::next(std::string_view& field) {
  if (!hasMore_) return false;
  dropLeadingBlanks(rest_);
  if (rest_.starts_with('"'))
    takeQuoted(field);
  else
    takePlain(field);
  return true;
}

void FieldScanner::takeQuoted(std::string_view& field) {
  rest_.remove_prefix(1);
  const auto quote = rest_.find('"');
  field = rest_.substr(0, quote);
  rest_.remove_prefix(quote == std::string_view::npos ? rest_.size() : quote + 1);
  dropLeadingBlanks(rest_);
  hasMore_ = !rest_.empty();
  if (rest_.starts_with(',')) rest_.remove_prefix(1);
}

void FieldScanner::takePlain(std::string_view& field) {
  const auto comma = rest_.find(',');
  field = rest_.substr(0, comma);
  field = field.substr(0, field.find_last_not_of(' ') + 1);
  hasMore_ = comma != std::string_view::npos;
  rest_.remove_prefix(hasMore_ ? comma + 1 : rest_.size());
}

}  // namespace odmiennik::disk
