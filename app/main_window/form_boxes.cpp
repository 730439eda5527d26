// SPDX-License-Identifier: GPL-3.0-or-later
// The boxes of the conjugation.
#include "app/main_window/form_boxes.h"

#include <algorithm>

#include "app/common/text.h"

namespace odmiennik::app {

FormBoxes::FormBoxes(const Controls& controls) {
  controls.forEach("txtCzasownik", [this](const ControlRow& row, QWidget& widget) {
    boxes_[static_cast<std::size_t>(row.index)] = static_cast<FormBox*>(&widget);
  });
  controls.forEach("lblSubjoncif", [this](const ControlRow& row, QWidget& widget) {
    captions_[static_cast<std::size_t>(row.index)] = static_cast<CaptionLabel*>(&widget);
  });
}

int FormBoxes::slotOf(const QObject& box) const {
  const auto found = std::ranges::find(boxes_, &box);
  if (found == boxes_.end()) return engine::slot::kInfinitive;
  return static_cast<int>(found - boxes_.begin());
}

void FormBoxes::setEditable(bool isEditable) const {
  for (FormBox* box : boxes_)
    if (box != &entry()) box->setReadOnly(!isEditable);
}

void FormBoxes::selectEntry() const {
  entry().setFocus();
  entry().selectAll();
}

void FormBoxes::show(const engine::Display& shown) const {
  for (std::size_t slot = 0; slot < boxes_.size(); ++slot)
    boxes_[slot]->showForm(fromFrench(shown.boxes[slot]));
  showCaptions(shown.captions);
}

void FormBoxes::showCaptions(const engine::SubjunctiveCaptions& captions) const {
  for (std::size_t i = 0; i < captions_.size(); ++i)
    captions_[i]->showText(fromFrench(captions[i]));
}

}  // namespace odmiennik::app
