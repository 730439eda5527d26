// SPDX-License-Identifier: GPL-3.0-or-later
// On a screen whose desktop draws everything larger no window is larger than the screen, and
// nothing in it is cut.
#include <QAbstractButton>
#include <QLabel>
#include <QScreen>

#include "app/view/colour_chooser.h"
#include "tests/window/program_run.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

QSize neededBy(const QWidget& part) {
  const auto* label = qobject_cast<const QLabel*>(&part);
  if (label == nullptr || !label->wordWrap()) return part.sizeHint();
  return {0, label->heightForWidth(label->width())};
}

bool hasText(const QWidget& part) {
  const auto* label = qobject_cast<const QLabel*>(&part);
  const auto* button = qobject_cast<const QAbstractButton*>(&part);
  return (label != nullptr && !label->text().isEmpty()) ||
         (button != nullptr && !button->text().isEmpty());
}

// The first text or button that has too little room; empty when there is none.
QString cutPart(const QWidget& window) {
  for (const QWidget* part : window.findChildren<QWidget*>()) {
    if (!part->isVisible() || !hasText(*part)) continue;
    const QRect place(part->mapTo(&window, QPoint()), part->size());
    const QSize needed = neededBy(*part);
    if (!window.rect().contains(place) || needed.boundedTo(part->size()) != needed)
      return QString("%1 %2").arg(part->metaObject()->className(), part->objectName());
  }
  return {};
}

// What is wrong with a window that is shown; empty when nothing is.
QString fault(const QWidget& window) {
  const QRect room = window.screen()->availableGeometry();
  if (!room.contains(window.frameGeometry())) {
    const QRect place = window.frameGeometry();
    return QString("%1x%2 at %3, %4")
        .arg(place.width())
        .arg(place.height())
        .arg(place.x())
        .arg(place.y());
  }
  return cutPart(window);
}

}  // namespace

class WholeWindowsSuite : public QObject {
  Q_OBJECT

 private slots:
  void theScreenIsSmallInItsOwnPixels();
  void theMainWindow();
  void theOneThatAMenuItemOpens_data();
  void theOneThatAMenuItemOpens();
  void theListWithItsLongestHint();
  void theColourChooser();
  void aWholeFormCanBeSoughtInTheHelp();
};

void WholeWindowsSuite::theScreenIsSmallInItsOwnPixels() {
  QVERIFY(QGuiApplication::primaryScreen()->size().height() < 600);
}

void WholeWindowsSuite::theMainWindow() {
  const ProgramUnderTest program;
  QVERIFY(program.window.screen()->availableGeometry().contains(program.window.frameGeometry()));
  const QWidget& surface = *program.window.centralWidget();
  for (const char* name : {"cmdOdmień", "txtCzasownik_89", "chkZAvoir"})
    QVERIFY2(surface.rect().contains(program.widget<QWidget>(name).geometry()), name);
}

void WholeWindowsSuite::theOneThatAMenuItemOpens_data() {
  QTest::addColumn<QString>("item");
  for (const char* item :
       {"mnuEdycjaLista", "mnuEdycjaUsuńCzasownik", "mnuWidokKolory", "mnuPlikUstawieniaDrukarki",
        "mnuPomocJak", "mnuPomocOProgramie", "mnuPomocTematy", "mnuCzasownikZnajdź",
        "mnuCzasownikSkąd", "mnuPlikZapiszOdmianę"})
    QTest::newRow(item) << item;
}

void WholeWindowsSuite::theOneThatAMenuItemOpens() {
  QFETCH(QString, item);
  const ProgramUnderTest program;
  program.conjugate("manger");
  QString wrong;
  ModalVisitor modal([&](QDialog& window) { wrong = fault(window); });
  program.item(item.toUtf8().constData()).trigger();
  QTRY_VERIFY(modal.visits > 0 || QApplication::activeWindow() != &program.window);
  if (modal.visits == 0) wrong = fault(*QApplication::activeWindow());
  QCOMPARE(wrong, QString());
}

void WholeWindowsSuite::theListWithItsLongestHint() {
  const ProgramUnderTest program;
  program.item("mnuEdycjaLista").trigger();
  QTRY_VERIFY(program.window.findChild<QLabel*>("lblPustaLista") != nullptr);
  const auto& hint = program.widget<QLabel>("lblPustaLista");
  QTRY_VERIFY(hint.isVisible());
  QVERIFY(!hint.text().isEmpty());
  QVERIFY(hint.height() >= hint.heightForWidth(hint.width()));
}

void WholeWindowsSuite::theColourChooser() {
  const ProgramUnderTest program;
  QString wrong("not shown");
  const ModalVisitor modal([&](QDialog& window) { wrong = fault(window); });
  QCOMPARE(app::QtColourChooser().choose(program.window, Qt::red), std::nullopt);
  QCOMPARE(wrong, QString());
}

void WholeWindowsSuite::aWholeFormCanBeSoughtInTheHelp() {
  const ProgramUnderTest program;
  program.item("mnuPomocTematy").trigger();
  QTRY_VERIFY(QApplication::activeWindow() != &program.window);
  const auto& field = program.widget<QLineEdit>("txtSzukaj");
  QVERIFY(field.width() >= field.fontMetrics().horizontalAdvance("enorgueillissions"));
  const auto& contents = program.widget<QWidget>("tabPomoc");
  QVERIFY(contents.width() >= contents.fontMetrics().horizontalAdvance("Czasowniki posiłkowe"));
}

std::unique_ptr<QObject> wholeWindowsSuite() { return std::make_unique<WholeWindowsSuite>(); }

}  // namespace odmiennik::window_test

#include "whole_windows_test.moc"
