// SPDX-License-Identifier: GPL-3.0-or-later
// White ground, dark letters.
#include "app/printing/paper_look.h"

#include <QApplication>

#include "app/common/colours.h"
#include "app/common/program_style.h"
#include "app/main_window/main_window.h"

namespace odmiennik::app {
namespace {

// The ground of the entry box and its panel is made of the highlight; on paper it is white as well.
QPalette paper() {
  QPalette palette(Qt::white);
  palette.setColor(QPalette::Highlight, Qt::white);
  return palette;
}

std::int32_t readable(std::int32_t number, const QPalette& palette) {
  const QColor text = palette.color(QPalette::WindowText);
  return numberOf(visibleColour(colourOfNumber(number, text), palette));
}

void paintForPaper(bool isForPaper) {
  if (auto* style = qobject_cast<ProgramStyle*>(QApplication::style()))
    style->paintForPaper(isForPaper);
}

}  // namespace

// The colours of the design follow the palette by themselves.
PaperLook::PaperLook(MainWindow& window) : window_(window), before_(window.colours().live()) {
  const QPalette palette = paper();
  paintForPaper(true);
  window_.centralWidget()->setPalette(palette);
  const auto [mood, tense] = window_.colours().live();
  window_.colours().ApplyColours(readable(mood, palette), readable(tense, palette));
}

PaperLook::~PaperLook() {
  window_.centralWidget()->setPalette(QPalette());  // that of the window
  window_.colours().ApplyColours(before_.mood, before_.tense);
  paintForPaper(false);
}

}  // namespace odmiennik::app
