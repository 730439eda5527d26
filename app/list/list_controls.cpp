// SPDX-License-Identifier: GPL-3.0-or-later
// The look of the verb list.
#include "app/list/list_controls.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QStackedLayout>
#include <algorithm>

#include "app/common/caption.h"
#include "app/common/text.h"
#include "app/layout/screen_room.h"

namespace odmiennik::app {
namespace {

constexpr int kBarHeight = 14;
constexpr int kListHeight = 300;
constexpr int kListLines = 12;  // at least, however large the letters: room for the longest hint
constexpr int kFewestLines = 4;
constexpr int kHintMargin = 24;
constexpr int kPlaceOfUsuń = 3;  // in the column of buttons, as designed
const QColor kBlue(30, 90, 168);

QString named(Utf8View caption) { return fromUtf8(caption); }

template <typename Widget>
Widget& create(QDialog& window, Utf8View name) {
  auto* widget = new Widget(&window);
  widget->setObjectName(fromUtf8(name));
  return *widget;
}

template <typename Widget>
Widget& createWithText(QDialog& window, Utf8View name, Utf8View caption) {
  Widget& widget = create<Widget>(window, name);
  widget.setText(named(caption));
  return widget;
}

}  // namespace

// Created in the order of the Tab key.
ListControls::ListControls(QDialog& dialog)
    : window(dialog),
      cmbLista(create<QComboBox>(dialog, "cmbLista")),
      lstCzasowniki(create<VerbListBox>(dialog, "lstCzasowniki")),
      lblPustaLista(create<QLabel>(dialog, "lblPustaLista")),
      lblIlość(createWithText<QLabel>(dialog, "lblIlość", "Ilość czasowników:")),
      lblIlośćCzasowników(create<QLabel>(dialog, "lblIlośćCzasowników")),
      lblWPrzygotowaniu(createWithText<QLabel>(dialog, "lblWPrzygotowaniu",
                                               "Przygotowywanie listy czasowników...")),
      shpStatusBar(create<QFrame>(dialog, "shpStatusBar")),
      shpNiebieska(create<QWidget>(dialog, "shpNiebieska")),
      cmdOdmień(createWithText<QPushButton>(dialog, "cmdOdmień", "&Odmień")),
      cmdEdytuj(createWithText<QPushButton>(dialog, "cmdEdytuj", "&Edytuj")),
      cmdNowy(createWithText<QPushButton>(dialog, "cmdNowy", "&Nowy")),
      cmdUsuń(createWithText<QPushButton>(dialog, "cmdUsuń", "&Usuń")),
      cmdDrukuj(createWithText<QPushButton>(dialog, "cmdDrukuj", "&Drukuj")),
      cmdZapiszListę(createWithText<QPushButton>(dialog, "cmdZapiszListę", "Zapi&sz listę jako…")),
      cmdZamknij(createWithText<QPushButton>(dialog, "cmdZamknij", "&Zamknij")),
      buttons_(*new QVBoxLayout),
      places_(*new QStackedLayout) {
  furnish();
  layOut();
}

void ListControls::furnish() {
  for (const Utf8View item : kListChoices) cmbLista.addItem(fromUtf8(item));
  lstCzasowniki.setAccessibleName(QStringLiteral("Czasowniki"));
  lstCzasowniki.setUniformItemSizes(true);  // a long list is laid out at once
  cmdOdmień.setDefault(true);               // the Enter key in the list
  // The widest button: where it is hidden, the others stay where they stand.
  QSizePolicy policy = cmdZapiszListę.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  cmdZapiszListę.setSizePolicy(policy);
  shpStatusBar.setFrameShape(QFrame::Box);
  shpStatusBar.setFixedHeight(kBarHeight);
  shpNiebieska.setParent(&shpStatusBar);
  shpNiebieska.setAutoFillBackground(true);
  shpNiebieska.setPalette(QPalette(kBlue));
}

// The hint stands over the list, and the mouse goes through it.
QWidget* ListControls::listPage() {
  auto* page = new QWidget(&window);
  auto* place = new QGridLayout(page);
  place->setContentsMargins({});
  place->addWidget(&lstCzasowniki, 0, 0);
  place->addWidget(&lblPustaLista, 0, 0);
  lblPustaLista.setWordWrap(true);
  lblPustaLista.setAlignment(Qt::AlignCenter);
  lblPustaLista.setMargin(kHintMargin);
  lblPustaLista.setAttribute(Qt::WA_TransparentForMouseEvents);
  lblPustaLista.raise();
  lblPustaLista.hide();
  return page;
}

QWidget* ListControls::fillingPage() {
  auto* page = new QWidget(&window);
  auto* rows = new QVBoxLayout(page);
  lblWPrzygotowaniu.setAlignment(Qt::AlignCenter);
  rows->addStretch();
  rows->addWidget(&lblWPrzygotowaniu);
  rows->addWidget(&shpStatusBar);
  rows->addStretch();
  return page;
}

void ListControls::layOut() {
  auto* count = new QHBoxLayout;
  count->addWidget(&lblIlość);
  count->addWidget(&lblIlośćCzasowników, 1);
  places_.addWidget(listPage());
  places_.addWidget(fillingPage());
  auto* lists = new QVBoxLayout;
  lists->addWidget(captionOf(QStringLiteral("&Lista:"), cmbLista));
  lists->addWidget(&cmbLista);
  lists->addLayout(&places_, 1);
  lists->addLayout(count);
  for (QPushButton* button :
       {&cmdOdmień, &cmdEdytuj, &cmdNowy, &cmdUsuń, &cmdDrukuj, &cmdZapiszListę})
    buttons_.addWidget(button);
  buttons_.addStretch();
  buttons_.addWidget(&cmdZamknij);
  auto* columns = new QHBoxLayout(&window);
  columns->addLayout(lists, 1);
  columns->addLayout(&buttons_);
  fitToScreen();
}

void ListControls::fitToScreen() {
  const int line = window.fontMetrics().lineSpacing();
  const int designed = std::max(kListHeight, kListLines * line);
  const auto setHeight = [this](int height) {
    lstCzasowniki.setMinimumHeight(height);
    window.layout()->invalidate();
    window.layout()->activate();  // the layouts inside it learn of the height now
  };
  setHeight(designed);
  const int excess = window.sizeHint().height() - screenRoom(window).height();
  if (excess > 0) setHeight(std::max(kFewestLines * line, designed - excess));
}

// The place is that of the button's row; the hidden ones give theirs up.
void ListControls::present(const ListAppearance& appearance) {
  window.setWindowTitle(fromUtf8(appearance.caption));
  buttons_.removeWidget(&cmdUsuń);
  buttons_.insertWidget(appearance.isDeleteMoved ? 0 : kPlaceOfUsuń, &cmdUsuń);
  for (QPushButton* button : {&cmdOdmień, &cmdEdytuj, &cmdNowy, &cmdDrukuj, &cmdZapiszListę})
    button->setVisible(appearance.showsOtherButtons);
  QWidget* previous = &lstCzasowniki;
  for (QPushButton* button :
       {&cmdOdmień, &cmdEdytuj, &cmdNowy, &cmdUsuń, &cmdDrukuj, &cmdZapiszListę}) {
    QWidget::setTabOrder(previous, button);
    previous = button;
  }
}

void ListControls::enable(const ListEnabling& enabled) {
  lstCzasowniki.setEnabled(enabled.lstCzasowniki);
  cmdOdmień.setEnabled(enabled.cmdOdmień);
  cmdEdytuj.setEnabled(enabled.cmdEdytuj);
  cmdUsuń.setEnabled(enabled.cmdUsuń);
  cmdDrukuj.setEnabled(enabled.cmdDrukuj);
  cmdZapiszListę.setEnabled(enabled.cmdOdmień);  // what can be conjugated can be saved
}

void ListControls::showFilling(bool isFilling) {
  if (isFilling) growBar(0, 0);
  places_.setCurrentIndex(isFilling ? 1 : 0);
}

void ListControls::showHint(const QString& text) {
  lblPustaLista.setText(text);
  lblPustaLista.setVisible(!text.isEmpty());
}

void ListControls::growBar(int filled, int number) {
  const QRect room = shpStatusBar.contentsRect();
  const QRect bar(room.topLeft(), QSize(barWidth(filled, number, room.width()), room.height()));
  if (bar == shpNiebieska.geometry()) return;
  shpNiebieska.setGeometry(bar);
  shpNiebieska.repaint();
}

}  // namespace odmiennik::app
