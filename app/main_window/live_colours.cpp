// SPDX-License-Identifier: GPL-3.0-or-later
// Colouring of the headings.
#include "app/main_window/live_colours.h"

#include <QEvent>

#include "app/common/colours.h"
#include "app/controls/form_surface.h"

namespace odmiennik::app {
namespace {

ColourNumbers numbersOf(const HeadingColours& colours) {
  return {numberOf(colours.mood), numberOf(colours.tense)};
}

void colour(QWidget& label, const QColor& colour) {
  if (label.palette().color(QPalette::WindowText) == colour) return;  // no repaint for nothing
  QPalette palette;
  palette.setColor(QPalette::WindowText, colour);
  label.setPalette(palette);
}

}  // namespace

LiveColours::LiveColours(const Controls& controls, FormSurface& surface)
    : controls_(controls), surface_(surface) {
  const auto [mood, tense] = design();
  ApplyColours(mood, tense);
  surface.installEventFilter(this);
}

bool LiveColours::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &surface_ && event->type() == QEvent::PaletteChange) adopt(live_);
  return false;
}

ColourNumbers LiveColours::design() const { return numbersOf(designColours(surface_.palette())); }

void LiveColours::adopt(ColourNumbers stored) {
  const ColourNumbers light = numbersOf({kMoodOnLight, kTenseOnLight});
  const ColourNumbers dark = numbersOf({kMoodOnDark, kTenseOnDark});
  const auto [mood, tense] = stored;
  ApplyColours(mood == light.mood || mood == dark.mood ? design().mood : mood,
               tense == light.tense || tense == dark.tense ? design().tense : tense);
}

void LiveColours::ApplyColours(std::int32_t mood, std::int32_t tense) {
  live_ = {mood, tense};
  const QColor text = surface_.palette().color(QPalette::WindowText);
  const QColor moodColour = colourOfNumber(live_.mood, text);
  surface_.setMoodColour(moodColour);
  controls_.forEach("lblTryb",
                    [&](const ControlRow&, QWidget& label) { colour(label, moodColour); });
  const QColor tenseColour = colourOfNumber(live_.tense, text);
  for (const char* name : {"lblCzas", "lblImiesłówZłożony"})
    controls_.forEach(name, [&](const ControlRow&, QWidget& label) { colour(label, tenseColour); });
}

}  // namespace odmiennik::app
