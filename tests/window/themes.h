// SPDX-License-Identifier: GPL-3.0-or-later
// The themes that a desktop may have, and what is seen on them.
#pragma once

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QTest>
#include <algorithm>
#include <cmath>

namespace odmiennik::window_test {

// The program in the colours of a theme, for as long as it lives.
class Theme {
 public:
  explicit Theme(const QPalette& palette) : before_(QApplication::palette()) {
    QApplication::setPalette(palette);
  }
  Theme(const Theme&) = delete;
  Theme& operator=(const Theme&) = delete;
  ~Theme() { QApplication::setPalette(before_); }

 private:
  QPalette before_;
};

inline QPalette lightPalette() { return QApplication::style()->standardPalette(); }

inline QPalette darkPalette() {
  QPalette palette(QColor(0x35, 0x35, 0x35), QColor(0x2D, 0x2D, 0x2D));
  palette.setColor(QPalette::Highlight, QColor(0x2A, 0x82, 0xDA));
  return palette;
}

// High contrast: everything black but the texts.
inline QPalette blackPalette() { return {Qt::black, Qt::black}; }

// Rows for a test of every theme: QFETCH(QPalette, palette).
inline void addThemes() {
  QTest::addColumn<QPalette>("palette");
  QTest::newRow("light") << lightPalette();
  QTest::newRow("white") << QPalette(Qt::white, Qt::white);
  QTest::newRow("dark") << darkPalette();
  QTest::newRow("black") << blackPalette();
}

inline double linear(double part) {
  return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

// Relative luminance and contrast ratio as accessibility guidelines define them.
inline double luminance(const QColor& colour) {
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}
inline double contrast(const QColor& first, const QColor& second) {
  const double a = luminance(first), b = luminance(second);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

}  // namespace odmiennik::window_test
