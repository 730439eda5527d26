// What the whole program looks and speaks like: style, font, Qt's own Polish texts.
#pragma once

#include <QFont>

class QApplication;

namespace odmiennik::app {

// Gives the application its style, its icon, the font that it carries, its title and Polish as its
// language. Called once, before the first window.
void prepare(QApplication& application);

// The font that the program carries: the metric twin of Arial.
[[nodiscard]] QFont programFont();

}  // namespace odmiennik::app
