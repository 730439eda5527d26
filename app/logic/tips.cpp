// SPDX-License-Identifier: GPL-3.0-or-later
// The tip of the day.
#include "app/logic/tips.h"

#include <charconv>
#include <cmath>
#include <utility>

#include "engine/string_table.h"

namespace odmiennik::app {
namespace {

constexpr std::string_view kLineBreakMark = "/n";

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

std::string withLineBreaks(std::string_view text, std::string_view lineBreak) {
  std::string shown;
  for (std::size_t mark = text.find(kLineBreakMark); mark != std::string_view::npos;
       mark = text.find(kLineBreakMark)) {
    shown.append(text.substr(0, mark)).append(lineBreak);
    text.remove_prefix(mark + kLineBreakMark.size());
  }
  return shown.append(text);
}

std::string tipText(int tip, std::string_view lineBreak) {
  return withLineBreaks(engine::textOf(engine::text_id::kTipCount + tip), lineBreak);
}

}  // namespace odmiennik::app
