// SPDX-License-Identifier: GPL-3.0-or-later
// Lines of a text table.
#include "formats/page.h"

#include <algorithm>

#include "formats/printable.h"

namespace odmiennik::formats {
namespace {

// ANSI colours that stay readable on dark and on light ground.
Utf8View codeOf(Style style) {
  switch (style) {
    case Style::title:
      return "\x1b[1m";
    case Style::mood:
      return "\x1b[1;34m";
    case Style::tense:
      return "\x1b[36m";
    case Style::pronoun:
      return "\x1b[2m";
    case Style::caption:
      return "\x1b[3m";
    case Style::missing:
      return "\x1b[2m";
    case Style::plain:
      break;
  }
  return {};
}

}  // namespace

std::size_t letterCount(Utf8View utf8) {
  return static_cast<std::size_t>(
      std::count_if(utf8.begin(), utf8.end(), [](char byte) { return (byte & '\xC0') != '\x80'; }));
}

void Page::addFrench(std::string_view french, Style style) {
  if (french.empty()) return;
  fillUp();
  beginStyle(style);
  const std::size_t start = out_.size();
  appendPrintable(out_, french);
  column_ += letterCount(Utf8View(out_).substr(start));
  endStyle(style);
}

void Page::addUtf8(Utf8View utf8, Style style) {
  if (utf8.empty()) return;
  fillUp();
  beginStyle(style);
  out_.append(utf8);
  endStyle(style);
  column_ += letterCount(utf8);
}

void Page::addRule(Utf8View utf8Dash, std::size_t endColumn, Style style) {
  fillUp();
  beginStyle(style);
  for (; column_ < endColumn; ++column_) out_.append(utf8Dash);
  endStyle(style);
}

void Page::endLine() {
  out_.push_back('\n');
  column_ = wanted_ = 0;
}

void Page::fillUp() {
  if (column_ < wanted_) out_.append(wanted_ - column_, ' ');
  column_ = std::max(column_, wanted_);
}

void Page::beginStyle(Style style) {
  if (isColoured_) out_.append(codeOf(style));
}

void Page::endStyle(Style style) {
  if (isColoured_ && style != Style::plain) out_.append("\x1b[0m");
}

}  // namespace odmiennik::formats
