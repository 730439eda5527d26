// SPDX-License-Identifier: GPL-3.0-or-later
// The conjugation of the main window.
#include "app/exporting/shown_answer.h"

#include "app/common/text.h"
#include "app/main_window/main_window.h"

namespace odmiennik::app {

ShownAnswer::ShownAnswer(const MainWindow& window) {
  take(window.conjugation());
  for (int slot = 0; slot < engine::kSlotCount; ++slot) {
    std::string_view& box = kept_.shown.boxes[static_cast<std::size_t>(slot)];
    kept_.forms[slot] =
        window.isEditing() ? toFrench(window.boxes()[slot].text().trimmed()) : std::string(box);
    box = kept_.forms[slot];
  }
  infinitive_ = toUtf8(fromFrench(kept_.forms[engine::slot::kInfinitive]).trimmed());
}

// What stands beside the forms.
void ShownAnswer::take(const engine::Conjugation& shown) {
  kept_.variety = shown.variety;
  kept_.flags = shown.flags;
  kept_.information = shown.information;
  kept_.source = shown.source;
  kept_.model = shown.model;
  kept_.shown = shown.shown;
}

formats::Answer ShownAnswer::answer() const {
  static const std::vector<Utf8Text> kNoMessages;
  return {infinitive_, kept_, kNoMessages, kept_.shown.isPronominal, false};
}

}  // namespace odmiennik::app
