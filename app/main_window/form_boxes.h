// SPDX-License-Identifier: GPL-3.0-or-later
// The 101 boxes of the conjugation and the captions that stand above them.
#pragma once

#include <array>

#include "app/controls/caption_label.h"
#include "app/controls/controls.h"
#include "app/controls/form_box.h"
#include "engine/display.h"

namespace odmiennik::app {

class FormBoxes {
 public:
  explicit FormBoxes(const Controls& controls);

  // Box `slot`, 0 to 100.
  [[nodiscard]] FormBox& operator[](int slot) const {
    return *boxes_[static_cast<std::size_t>(slot)];
  }

  // The box of the infinitive, where the user types.
  [[nodiscard]] FormBox& entry() const { return (*this)[engine::slot::kInfinitive]; }

  // What all boxes let through.
  [[nodiscard]] const FrenchLetters* letters() const {
    return static_cast<const FrenchLetters*>(entry().validator());
  }

  // The slot whose box `box` is; the infinitive's for anything that is no box.
  [[nodiscard]] int slotOf(const QObject& box) const;

  // Boxes other than the infinitive's take texts while a verb is edited only.
  void setEditable(bool isEditable) const;

  // Puts the word that the window starts with, or the text that is there, under the caret: the
  // entry box has the focus and typing replaces its text.
  void selectEntry() const;

  void show(const engine::Display& shown) const;
  void showCaptions(const engine::SubjunctiveCaptions& captions) const;

  // Caption `number`, 0 to 3, that stands above a subjunctive.
  [[nodiscard]] CaptionLabel& caption(int number) const {
    return *captions_[static_cast<std::size_t>(number)];
  }

 private:
  std::array<FormBox*, engine::kSlotCount> boxes_{};
  std::array<CaptionLabel*, 4> captions_{};
};

}  // namespace odmiennik::app
