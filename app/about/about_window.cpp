// SPDX-License-Identifier: GPL-3.0-or-later
// The about window.
#include "app/about/about_window.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <QWindow>

#include "app/about/about_outline.h"
#include "app/common/colours.h"
#include "app/common/look.h"
#include "app/common/text.h"
#include "app/logic/statistics.h"
#include "app/platform/platform.h"

namespace odmiennik::app {
namespace {

constexpr int kBandHeight = 84;
constexpr int kTitlePixels = 30;
constexpr int kMargin = 24;
constexpr QRgb kBand = kTenseOnLight;
constexpr QRgb kFoldedPaper = 0xFFC9D6EE;

QLabel* label(const char* name, const QString& text) {
  auto* made = new QLabel(text);
  made->setObjectName(QString::fromUtf8(name));
  made->setTextFormat(Qt::PlainText);
  made->setWordWrap(true);
  return made;
}

void onBand(QLabel& label, int pixels, bool isBold) {
  QFont font = label.font();
  font.setPixelSize(pixels);
  font.setBold(isBold);
  label.setFont(font);
  QPalette palette = label.palette();
  palette.setColor(QPalette::WindowText, Qt::white);
  label.setPalette(palette);
}

}  // namespace

AboutWindow::AboutWindow(QWidget* parent, const Usage& usage, dictionary::MessageBoxes& messages)
    : SteadyWindow(parent, Qt::Dialog | Qt::FramelessWindowHint), messages_(messages) {
  setObjectName(QStringLiteral("frmAbout"));
  setWindowTitle(QStringLiteral("O programie Odmiennik"));
  setFont(programFont());  // the outline is cut for it
  setFixedSize(kAboutSize);
  setAttribute(Qt::WA_TranslucentBackground);  // shapes the window where a mask does not
  setMask(aboutRegion());
  create(usage);
  arrange();
  connect(ok_, &QPushButton::clicked, this, &QDialog::accept);
  connect(systemInformation_, &QPushButton::clicked, this, &AboutWindow::startSystemInformation,
          Qt::QueuedConnection);
}

void AboutWindow::create(const Usage& usage) {
  title_ = label("lblTytuł", QStringLiteral("Odmiennik"));
  onBand(*title_, kTitlePixels, true);
  version_ =
      label("lblVersion", QStringLiteral("Wersja %1").arg(QCoreApplication::applicationVersion()));
  onBand(*version_, font().pixelSize(), false);
  description_ = label(
      "lblOpis", QStringLiteral("Pełna odmiana czasowników francuskich w jednym oknie: wszystkie "
                                "tryby, czasy i osoby dla uczących się francuskiego."));
  disclaimer_ = label(
      "lblZastrzeżenie",
      QStringLiteral("Odmianę program tworzy według reguł i listy wyjątków. Pomaga w nauce, lecz "
                     "nie zastępuje gramatyki ani słownika; znane odstępstwa wymienia pomoc."));
  statistics_ =
      label("lblStatystyka", fromUtf8(statisticsSentence(usage.conjugations, usage.runs)));
  systemInformation_ = new QPushButton(QStringLiteral("&Informacje o systemie..."));
  systemInformation_->setObjectName(QStringLiteral("cmdSysInfo"));
  ok_ = new QPushButton(QStringLiteral("OK"));
  ok_->setObjectName(QStringLiteral("cmdOK"));
  ok_->setDefault(true);
}

void AboutWindow::arrange() {
  auto* band = new QVBoxLayout;
  band->setContentsMargins(0, 14, 0, 22);
  band->setSpacing(2);
  band->addWidget(title_);
  band->addWidget(version_);
  auto* row = new QHBoxLayout;
  row->addWidget(systemInformation_);
  row->addStretch();
  row->addWidget(ok_);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(kMargin, 0, kMargin, kAboutTip + kMargin - 4);
  all->setSpacing(12);
  all->addLayout(band);
  all->addWidget(description_);
  all->addWidget(statistics_);
  all->addWidget(disclaimer_);
  all->addStretch(1);
  all->addLayout(row);
  ok_->setFocus();
}

// The outline cuts the outer half of the border away: what remains is sharp.
void AboutWindow::paintEvent(QPaintEvent* /*event*/) {
  constexpr qreal kBorder = 4;
  QPainter painter(this);
  painter.setClipRegion(aboutRegion());
  painter.fillRect(rect(), palette().color(QPalette::Base));
  painter.fillRect(QRect(0, 0, width(), kBandHeight), QColor(kBand));
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(kFoldedPaper));
  painter.drawPolygon(aboutFold());
  painter.setPen(
      QPen(designColours(palette()).tense, kBorder, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPolygon(aboutOutline());
}

// The system moves the window where it can; elsewhere it follows the pointer.
void AboutWindow::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || windowHandle()->startSystemMove()) return;
  grip_ = event->globalPosition().toPoint() - pos();
}

void AboutWindow::mouseMoveEvent(QMouseEvent* event) {
  if (grip_) move(event->globalPosition().toPoint() - *grip_);
}

void AboutWindow::mouseReleaseEvent(QMouseEvent* /*event*/) { grip_.reset(); }

void AboutWindow::startSystemInformation() {
  const std::string tool = platform::systemInformation();
  if (tool.empty() || !platform::start(tool))
    messages_.show(dictionary::MessageId::systemInformationMissing);
}

}  // namespace odmiennik::app
