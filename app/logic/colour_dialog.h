// SPDX-License-Identifier: GPL-3.0-or-later
// The state of the colour window frmKolory.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "app/logic/colour_number.h"

namespace odmiennik::app {

// The two colours of the headings as numbers of the settings file.
struct ColourNumbers {
  std::int32_t mood = 0;
  std::int32_t tense = 0;

  bool operator==(const ColourNumbers&) const = default;
};

// Sample 0 is the mood colour, sample 1 the tense colour. A system colour stays the number that it
// is until another colour is chosen for its sample.
class ColourDialog {
 public:
  explicit ColourDialog(ColourNumbers live) : samples_{live.mood, live.tense} {}

  [[nodiscard]] std::int32_t sample(std::size_t index) const { return samples_.at(index); }

  // Whether cmdZastosuj is enabled.
  [[nodiscard]] bool canApply() const { return canApply_; }

  // The chooser of a sample was closed with a colour, or cancelled.
  // deliberate: cmdZastosuj is enabled by a cancelled chooser as well.
  void choose(std::size_t index, std::optional<Rgb> chosen);

  // cmdZastosuj and cmdOk: the colours to be applied to the main window.
  [[nodiscard]] ColourNumbers apply();
  [[nodiscard]] ColourNumbers accept() const { return {samples_[0], samples_[1]}; }

 private:
  std::array<std::int32_t, 2> samples_;
  bool canApply_ = false;
};

}  // namespace odmiennik::app
