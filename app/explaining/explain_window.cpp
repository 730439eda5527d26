// SPDX-License-Identifier: GPL-3.0-or-later
// How a form came to be.
#include "app/explaining/explain_window.h"

#include <QHBoxLayout>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "app/common/announcement.h"

namespace odmiennik::app {
namespace {

constexpr int kLettersWide = 60;
constexpr int kLinesHigh = 7;
constexpr int kGap = 4;

}  // namespace

ExplainWindow::ExplainWindow(QWidget* mainWindow)
    : SteadyWindow(mainWindow),
      story_(*new QPlainTextEdit(this)),
      close_(*new QPushButton(QStringLiteral("&Zamknij"), this)) {
  setObjectName(QStringLiteral("frmSkąd"));
  setWindowTitle(QStringLiteral("Skąd ta forma?"));
  story_.setObjectName(QStringLiteral("txtSkąd"));
  story_.setReadOnly(true);
  story_.setTabChangesFocus(true);
  story_.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  close_.setObjectName(QStringLiteral("cmdZamknij"));
  close_.setDefault(true);
  layOut();
  connect(&close_, &QPushButton::clicked, this, &ExplainWindow::close);
}

void ExplainWindow::layOut() {
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(&close_);
  auto* rows = new QVBoxLayout(this);
  rows->addWidget(&story_, 1);
  rows->addLayout(buttons);
  const QFontMetrics letters = fontMetrics();
  const QSize wanted(letters.averageCharWidth() * kLettersWide, letters.lineSpacing() * kLinesHigh);
  story_.setMinimumSize(wanted / 2);
  resize(minimumSizeHint() + wanted / 2);
}

void ExplainWindow::tell(const QString& place, const QString& story, const QWidget& box) {
  story_.setPlainText(story);
  story_.setAccessibleName(place);
  if (!isVisible()) placeNear(box);
  show();
  raise();
  activateWindow();
  story_.setFocus();
  announce(place + QStringLiteral(": ") +
           QString(story).replace(QLatin1Char('\n'), QStringLiteral("; ")));
}

// Below the box, above it where there is no room; never off the screen.
void ExplainWindow::placeNear(const QWidget& box) {
  const QRect screen = box.screen()->availableGeometry();
  const QPoint below = box.mapToGlobal(QPoint(0, box.height() + kGap));
  const QSize size = frameSize();
  const bool hasRoom = below.y() + size.height() <= screen.bottom();
  const int above = box.mapToGlobal(QPoint(0, 0)).y() - size.height() - kGap;
  const int top = hasRoom ? below.y() : std::max(screen.top(), above);
  const int rightmost = std::max(screen.left(), screen.right() - size.width());
  move(std::clamp(below.x(), screen.left(), rightmost), top);
}

}  // namespace odmiennik::app
