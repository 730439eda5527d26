// SPDX-License-Identifier: GPL-3.0-or-later
// The floor of every start-up figure: a window of 101 line edits, and nothing behind them.
#include <QApplication>
#include <QLineEdit>
#include <QWidget>

int main(int argumentCount, char** arguments) {
  constexpr int kBoxes = 101, kColumns = 6, kWidth = 120, kHeight = 21;
  QApplication application(argumentCount, arguments);
  QWidget window;
  window.resize(796, 570);
  for (int box = 0; box < kBoxes; ++box) {
    auto* edit = new QLineEdit(&window);
    edit->setGeometry(10 + box % kColumns * (kWidth + 5), 10 + box / kColumns * (kHeight + 5),
                      kWidth, kHeight);
  }
  window.show();
  return QApplication::exec();
}
