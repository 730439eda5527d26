// SPDX-License-Identifier: GPL-3.0-or-later
// What the whole program looks and speaks like: style, font, Qt's own Polish texts.
#pragma once

#include <QFont>

class QApplication;
class QWidget;

namespace odmiennik::app {

// Gives the application its style, its title, Polish as its language and the font that it carries
// for the table; menus and windows keep the system's own. Called once, before the first window.
void prepare(QApplication& application);

// Gives the application its icon once the first picture of `window` is on the screen: reading it
// takes as long as a tenth of that picture.
void giveIconLater(QWidget& window);

// Returns once `window`, which is shown, has its first picture on the screen; after a fifth of a
// second also without it, as where it starts minimised. What the user does meanwhile waits.
void waitForFirstPicture(QWidget& window);

// The font that the program carries: the metric twin of Arial.
[[nodiscard]] QFont programFont();

// A font in another size, whichever way its own is given: enlarged(font(), 1.5).
[[nodiscard]] QFont enlarged(QFont font, qreal factor);

}  // namespace odmiennik::app
