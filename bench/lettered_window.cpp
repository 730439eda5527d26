// SPDX-License-Identifier: GPL-3.0-or-later
// The floor under a window of letters: the boxes, captions and pronouns of the real one in its
// places and fonts, as plain widgets and with nothing behind them.
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QWidget>

#include "data/main_window.h"

namespace {

using odmiennik::app::ControlKind;
using odmiennik::app::ControlRow;
using odmiennik::app::ControlState;
using odmiennik::app::kMainWindow;
using odmiennik::app::kTwipsPerPixel;

QString caption(const ControlRow& row) {
  return QString::fromUtf8(row.caption.data(), static_cast<qsizetype>(row.caption.size()));
}

QRect place(const ControlRow& row) {
  return {row.left / kTwipsPerPixel, row.top / kTwipsPerPixel, row.width / kTwipsPerPixel,
          row.height / kTwipsPerPixel};
}

QFont fontOf(const ControlRow& row) {
  constexpr double kPixelsPerHundredth = 20.0 / kTwipsPerPixel / 100;
  QFont font(QStringLiteral("Liberation Sans"));
  font.setPixelSize(qRound(row.fontHundredths * kPixelsPerHundredth));
  font.setBold(row.isBold);
  return font;
}

QWidget* controlOf(const ControlRow& row, QWidget& window) {
  switch (row.kind) {
    case ControlKind::label:
      return new QLabel(caption(row), &window);
    case ControlKind::textBox:
      return new QLineEdit(&window);
    case ControlKind::button:
      return new QPushButton(caption(row), &window);
    case ControlKind::checkBox:
      return new QCheckBox(caption(row), &window);
    default:
      return nullptr;
  }
}

class LetteredWindow : public QWidget {
 public:
  LetteredWindow() {
    resize(place(kMainWindow[0]).size());
    for (const ControlRow& row : kMainWindow) {
      QWidget* control = row.state == ControlState::hidden ? nullptr : controlOf(row, *this);
      if (control == nullptr) continue;
      control->setFont(fontOf(row));
      control->setGeometry(place(row));
    }
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    constexpr int kPersonalBoxes = 90, kGutter = 17;
    constexpr const char* kPronouns[] = {"je", "tu", "il", "ns", "vs", "ils"};
    QPainter painter(this);
    painter.setFont(fontOf(kMainWindow[0]));
    for (const ControlRow& row : kMainWindow)
      if (row.kind == ControlKind::textBox && row.index < kPersonalBoxes)
        painter.drawText(place(row).translated(-kGutter, 0), Qt::AlignVCenter,
                         QLatin1String(kPronouns[row.index % std::size(kPronouns)]));
  }
};

}  // namespace

int main(int argumentCount, char** arguments) {
  QApplication application(argumentCount, arguments);
  LetteredWindow window;
  window.show();
  return QApplication::exec();
}
