// SPDX-License-Identifier: GPL-3.0-or-later
// What a part of a window says of itself, in a small window below it.
#pragma once

#include <QString>
#include <QWidget>

namespace odmiennik::app {

// Plain text, line below line, as a tooltip takes it: never read as HTML.
[[nodiscard]] QString asTip(const QString& text);

// Shows `text` below the widget, over whatever bubble is there; a screen reader finds it as the
// widget's description.
void showBubble(QWidget& widget, const QString& text);

// Takes away the widget's bubble, if it is there.
void hideBubble(QWidget& widget);

}  // namespace odmiennik::app
