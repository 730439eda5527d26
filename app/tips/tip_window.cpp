// SPDX-License-Identifier: GPL-3.0-or-later
// The tip of the day: its controls and their places.
#include "app/tips/tip_window.h"

#include <QCheckBox>
#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/common/announcement.h"
#include "app/common/beside.h"
#include "app/common/colours.h"
#include "app/common/look.h"
#include "app/common/text.h"
#include "app/common/user_store.h"
#include "app/logic/tips.h"

namespace odmiennik::app {
namespace {

constexpr qreal kTextSize = 1.17;
constexpr qreal kHeadingSize = 1.67;
// Room for the longest tip, so that the window keeps its size: in lines, and in letters of a line.
constexpr int kTextLines = 6;
constexpr int kLineLetters = 62;

QFont bold(QFont font) {
  font.setBold(true);
  return font;
}

template <typename Widget>
Widget* named(const char* name, const char* caption = "") {
  auto* widget = new Widget(QString::fromUtf8(caption));
  widget->setObjectName(QString::fromUtf8(name));
  return widget;
}

}  // namespace

TipWindow::TipWindow(QWidget* parent, UserStore& store, bool& isForced,
                     std::function<double()> random)
    : SteadyWindow(parent), isForced_(isForced), random_(std::move(random)) {
  setObjectName(QStringLiteral("frmTip"));
  setWindowTitle(QStringLiteral("Porada dnia"));
  setModal(true);
  create();
  arrange();
  connectControls(store);
  DisplayCurrentTip();
  if (parent == nullptr) return;
  placeBeside(*this, *parent);
  parent->installEventFilter(this);
}

// At start the system tells only now where it has placed the main window.
bool TipWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
    placeBeside(*this, *parentWidget());
  return QDialog::eventFilter(watched, event);
}

void TipWindow::create() {
  heading_ = named<QLabel>("lblNagłówek", "Czy wiesz, że…");
  heading_->setFont(bold(enlarged(font(), kHeadingSize)));
  QPalette colours;
  colours.setColor(QPalette::WindowText, designColours(palette()).mood);
  heading_->setPalette(colours);
  heading_->setForegroundRole(QPalette::WindowText);  // which paper would make the text's
  text_ = named<QLabel>("lblTipText");
  text_->setFont(enlarged(font(), kTextSize));
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  text_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  const QFontMetrics letters = text_->fontMetrics();
  text_->setMinimumSize(kLineLetters * letters.averageCharWidth(),
                        kTextLines * letters.lineSpacing());
  text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  atStart_ = named<QCheckBox>("chkLoadTipsAtStartup", "&Wyświetlaj przy uruchamianiu");
  demonstrations_ = {named<QPushButton>("cmdPokaż_0", "&Pokaż 1!"),
                     named<QPushButton>("cmdPokaż_1", "&Pokaż 2!")};
  next_ = named<QPushButton>("cmdNextTip", "&Następna");
  ok_ = named<QPushButton>("cmdOK", "OK");
  ok_->setDefault(true);
}

void TipWindow::arrange() {
  auto* page = new QFrame;
  page->setFrameShape(QFrame::StyledPanel);
  page->setBackgroundRole(QPalette::Base);
  page->setAutoFillBackground(true);
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(18, 14, 18, 14);
  column->setSpacing(10);
  column->addWidget(heading_);
  column->addWidget(text_, 1);

  auto* demonstrations = new QHBoxLayout;
  for (QPushButton* button : demonstrations_) demonstrations->addWidget(button);
  demonstrations->addStretch();
  column->addLayout(demonstrations);

  auto* row = new QHBoxLayout;
  row->addWidget(atStart_);
  row->addStretch();
  row->addWidget(next_);
  row->addWidget(ok_);
  auto* all = new QVBoxLayout(this);
  all->addWidget(page, 1);
  all->addLayout(row);
  all->setSizeConstraint(QLayout::SetFixedSize);
  ok_->setFocus();
}

void TipWindow::connectControls(UserStore& store) {
  atStart_->setChecked(store.isTipShownAtStart());
  connect(atStart_, &QCheckBox::toggled, this,
          [&store](bool isOn) { store.setTipShownAtStart(isOn); });
  connect(next_, &QPushButton::clicked, this, &TipWindow::DisplayCurrentTip);
  connect(ok_, &QPushButton::clicked, this, &QDialog::accept);
  for (int way = 0; way < 2; ++way)
    connect(demonstrations_[static_cast<std::size_t>(way)], &QPushButton::clicked, this,
            [this, way] { choose(way); });
}

void TipWindow::offerDemonstrations(std::function<void()> announce) {
  announce_ = std::move(announce);
  showDemonstrationButtons();
}

void TipWindow::choose(int demonstration) {
  announce_();
  chosen_ = demonstration;
  accept();
}

void TipWindow::DisplayCurrentTip() {
  tip_ = drawTip(random_(), tipCount(), isForced_);
  text_->setText(fromUtf8(tipText(tip_, "\n")));
  if (isVisible()) announce(text_->text());
  showDemonstrationButtons();
}

void TipWindow::showDemonstrationButtons() {
  for (QPushButton* button : demonstrations_)
    button->setVisible(announce_ && offersDemonstration(tip_));
}

}  // namespace odmiennik::app
