// SPDX-License-Identifier: GPL-3.0-or-later
// The tip of the day.
#include "app/logic/tips.h"

#include <charconv>
#include <cmath>
#include <utility>

#include "engine/string_table.h"

namespace odmiennik::app {
namespace {

constexpr Utf8View kLineBreakMark = "/n";

}  // namespace

int tipCount() {
  const std::string_view text = engine::textOf(engine::text_id::kTipCount);
  int count = 0;
  std::from_chars(text.data(), text.data() + text.size(), count);
  return count;
}

int drawTip(double random, double count, bool& isForced) {
  const int drawn = static_cast<int>(std::floor(random * count + 1));
  return std::exchange(isForced, false) ? kHowToTip : drawn;
}

Utf8Text withLineBreaks(Utf8View text, Utf8View lineBreak) {
  Utf8Text shown;
  for (std::size_t mark = text.find(kLineBreakMark); mark != std::string::npos;
       mark = text.find(kLineBreakMark)) {
    shown.append(text.substr(0, mark)).append(lineBreak);
    text.remove_prefix(mark + kLineBreakMark.size());
  }
  return shown.append(text);
}

Utf8Text tipText(int tip, Utf8View lineBreak) {
  return withLineBreaks(asUtf8(engine::textOf(engine::text_id::kTipCount + tip)), lineBreak);
}

}  // namespace odmiennik::app
