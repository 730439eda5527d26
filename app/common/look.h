// What the whole program looks and speaks like: style, font, Qt's own Polish texts.
#pragma once

#include <QFont>

class QApplication;
class QWidget;

namespace odmiennik::app {

// Gives the application its style, the font that it carries, its title and Polish as its
// language. Called once, before the first window.
void prepare(QApplication& application);

// Gives the application its icon once the first picture of `window` is on the screen: reading it
// takes as long as a tenth of that picture.
void giveIconLater(QWidget& window);

// The font that the program carries: the metric twin of Arial.
[[nodiscard]] QFont programFont();

}  // namespace odmiennik::app
