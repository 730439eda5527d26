// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of the main window's headings.
#pragma once

#include <QObject>
#include <cstdint>

#include "app/controls/controls.h"
#include "app/logic/colour_dialog.h"

namespace odmiennik::app {

class FormSurface;

// Colours are the numbers of the settings file. A negative one is shown as the theme's text and
// kept as it is until another is applied. The stored colours of the design follow the theme: each
// is shown in the shade that is readable on the theme's ground, whichever of its shades was stored.
class LiveColours final : public QObject {
  Q_OBJECT

 public:
  // Shows the colours of the design.
  LiveColours(const Controls& controls, FormSurface& surface);

  // Paints the mood headings, rules and decorations in the one colour and the tense headings in the
  // other; visible at once.
  void ApplyColours(std::int32_t mood, std::int32_t tense);

  // Applies stored colours, those of the design in the shade for the theme of now.
  void adopt(ColourNumbers stored);

  // Those of lblTryb 0 and lblCzas 0: what the settings file is given.
  [[nodiscard]] ColourNumbers live() const { return live_; }

  // Those that the headings have by design in the theme of now.
  [[nodiscard]] ColourNumbers design() const;

 protected:
  // A change of the theme.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  const Controls& controls_;
  FormSurface& surface_;
  ColourNumbers live_;
};

}  // namespace odmiennik::app
