// SPDX-License-Identifier: GPL-3.0-or-later
// What the window's parts say of themselves.
#include <QHelpEvent>
#include <QToolTip>

#include "app/controls/form_surface.h"
#include "tests/window/program_under_test.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {

class TooltipsSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() { program_ = std::make_unique<ProgramUnderTest>(); }
  void cleanup() {
    QToolTip::hideText();
    program_.reset();
  }

  void aFormSaysItsWholePhrase();
  void aFormOfAnAspiratedHDoesNotElide();
  void aMissingFormSaysSo();
  void beforeTheFirstVerbABoxSaysNothing();
  void theEntryBoxSaysWhatIsTyped();
  void aFormOfTheUsersOwnFileSaysSo();
  void aFormThatIsEditedSaysWhatStandsInTheBox();
  void aTextThatLooksLikeHtmlIsShownAsItIs();
  void aLetterSaysHowItIsTyped();
  void aHeadingSaysHowItsPageIsOpened();
  void anUnknownValueIsSpeltOut();
  void theAuxiliarySaysWhatItsTickMeans();
  void pronounsThatAreShortenedAreSpeltOut();
  void theGroundSaysNothing();
  void theFocusedBoxSaysItsPhraseAfterAMoment();
  void theNextFocusEndsTheTip();
  void theWindowShowsNoTipOfItsOwnAtTheStart();
  void beforeTheFirstVerbAQuietHintTellsHowToBegin();

 private:
  // Points at a place of the window's ground, as the pointer that rests does.
  void pointAt(const QPoint& place) {
    QWidget& surface = program_->window.surface();
    QHelpEvent event(QEvent::ToolTip, place, surface.mapToGlobal(place));
    QCoreApplication::sendEvent(&surface, &event);
  }

  // Points at the middle of a control, through whichever widget takes the event first.
  QString tipOf(QWidget& control) {
    QToolTip::hideText();
    QHelpEvent event(QEvent::ToolTip, control.rect().center(),
                     control.mapToGlobal(control.rect().center()));
    QCoreApplication::sendEvent(&control, &event);
    return QToolTip::text();
  }
  QString tipOfBox(int slot) { return tipOf(program_->box(slot)); }
  QString phraseOfBox(int slot) { return tipOfBox(slot).section('\n', 0, 0); }

  std::unique_ptr<ProgramUnderTest> program_;
};

void TooltipsSuite::aFormSaysItsWholePhrase() {
  program_->conjugate("se promener");
  QCOMPARE(tipOfBox(51), "que nous nous promenions\nF1: kiedy używa się tej formy");
  QCOMPARE(phraseOfBox(27), "nous nous sommes promenés lub promenées");
  program_->conjugate("payer");
  QCOMPARE(phraseOfBox(0), "je paye lub je paie");
}

void TooltipsSuite::aFormOfAnAspiratedHDoesNotElide() {
  program_->conjugate("haïr");
  QCOMPARE(phraseOfBox(0), "je hais");
  program_->conjugate("habiter");
  QCOMPARE(phraseOfBox(0), "j'habite");
}

void TooltipsSuite::aMissingFormSaysSo() {
  program_->conjugate("falloir");
  QCOMPARE(phraseOfBox(0), "ten czasownik nie ma tej formy");
  QCOMPARE(phraseOfBox(2), "il faut");
}

void TooltipsSuite::beforeTheFirstVerbABoxSaysNothing() { QCOMPARE(tipOfBox(0), ""); }

void TooltipsSuite::theEntryBoxSaysWhatIsTyped() {
  QCOMPARE(tipOfBox(96), "wpisz bezokolicznik i naciśnij Enter");
}

void TooltipsSuite::aFormOfTheUsersOwnFileSaysSo() {
  program_->conjugate("parler");
  QVERIFY(!tipOfBox(0).contains("z własnego pliku czasowników"));
  program_->messages.answer = dictionary::Button::yes;
  program_->item("mnuEdycjaEdytujCzasownik").trigger();
  QTRY_VERIFY(!program_->box(0).isReadOnly());
  program_->item("mnuPlikZapiszCzasownik").trigger();
  QTRY_VERIFY(program_->box(0).isReadOnly());
  QVERIFY2(tipOfBox(0).contains("je parle\nz własnego pliku czasowników"), qPrintable(tipOfBox(0)));
}

void TooltipsSuite::aFormThatIsEditedSaysWhatStandsInTheBox() {
  program_->conjugate("parler");
  program_->item("mnuEdycjaEdytujCzasownik").trigger();
  QTRY_VERIFY(!program_->box(0).isReadOnly());
  program_->box(0).setText("aime");
  QCOMPARE(tipOfBox(0), "j'aime");
}

void TooltipsSuite::aTextThatLooksLikeHtmlIsShownAsItIs() {
  program_->conjugate("parler");
  program_->item("mnuEdycjaEdytujCzasownik").trigger();
  QTRY_VERIFY(!program_->box(0).isReadOnly());
  program_->box(0).setText("<b>x");
  QVERIFY2(tipOfBox(0).contains("&lt;b&gt;x"), qPrintable(tipOfBox(0)));
}

void TooltipsSuite::aLetterSaysHowItIsTyped() {
  QCOMPARE(tipOf(program_->widget<QPushButton>("cmdFrancuskaLitera_5")),
           "ê – wstaw literę (F6, strzałki, spacja)");
}

void TooltipsSuite::aHeadingSaysHowItsPageIsOpened() {
  QCOMPARE(tipOf(program_->widget<QLabel>("lblCzas_8")), "kliknij albo F1: kiedy się go używa");
}

void TooltipsSuite::anUnknownValueIsSpeltOut() {
  const QString name = QString::fromUtf8("lblGrupaWartość");
  QCOMPARE(tipOf(program_->widget<QLabel>(name)), "brak danych");
  program_->conjugate("parler");
  tipOf(program_->widget<QLabel>(name));
  QTRY_VERIFY(!QToolTip::isVisible());
}

void TooltipsSuite::theAuxiliarySaysWhatItsTickMeans() {
  program_->auxiliary().setEnabled(true);
  QVERIFY(tipOf(program_->auxiliary()).startsWith("zaznaczone: czasy złożone z avoir"));
  program_->auxiliary().setEnabled(false);
  QCOMPARE(tipOf(program_->auxiliary()), "ten czasownik ma tylko jeden czasownik posiłkowy");
}

void TooltipsSuite::pronounsThatAreShortenedAreSpeltOut() {
  const auto inFrontOf = [this](int slot) {
    return QPoint(program_->box(slot).x() - 8, program_->box(slot).geometry().center().y());
  };
  pointAt(inFrontOf(3));
  QCOMPARE(QToolTip::text(), "ns = nous, vs = vous");
  pointAt(inFrontOf(88));
  QCOMPARE(QToolTip::text(), "ns = nous, vs = vous");
  pointAt(inFrontOf(2));
  QCOMPARE(QToolTip::text(), "il – tak samo elle i on");
}

void TooltipsSuite::theGroundSaysNothing() {
  tipOfBox(96);
  QTRY_VERIFY(QToolTip::isVisible());
  pointAt({program_->window.surface().width() - 2, 2});
  QTRY_VERIFY(!QToolTip::isVisible());
}

void TooltipsSuite::theFocusedBoxSaysItsPhraseAfterAMoment() {
  program_->conjugate("parler");
  QTest::keyClick(&program_->entry(), Qt::Key_Tab);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  QCOMPARE(QApplication::focusWidget(), &program_->box(90));
  QVERIFY(!QToolTip::isVisible());
  QTRY_VERIFY(QToolTip::isVisible());
  QVERIFY(QToolTip::text().startsWith(QString("parle\u00A0!")));
  QCOMPARE(program_->box(90).accessibleDescription(), QToolTip::text());
}

void TooltipsSuite::theNextFocusEndsTheTip() {
  program_->conjugate("parler");
  QTest::keyClick(&program_->entry(), Qt::Key_Tab);
  QTRY_VERIFY(QToolTip::isVisible());
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  QVERIFY(program_->box(97).accessibleDescription().isEmpty());
  QTRY_COMPARE(QToolTip::text().section('\n', 0, 0), QString("parle\u00A0!"));
}

void TooltipsSuite::theWindowShowsNoTipOfItsOwnAtTheStart() {
  const int moment = QApplication::style()->styleHint(QStyle::SH_ToolTip_WakeUpDelay);
  QVERIFY(!QTest::qWaitFor([] { return QToolTip::isVisible(); }, 2 * moment));
}

void TooltipsSuite::beforeTheFirstVerbAQuietHintTellsHowToBegin() {
  const QLabel& hint = program_->widget<QLabel>(QString::fromUtf8("lblPodpowiedź"));
  QVERIFY(hint.isVisible());
  QCOMPARE(hint.text(), "Wpisz na przykład aller i naciśnij Enter");
  QVERIFY(hint.sizeHint().width() <= hint.width());
  program_->conjugate("aller");
  QVERIFY(!hint.isVisible());
}

std::unique_ptr<QObject> tooltipsSuite() { return std::make_unique<TooltipsSuite>(); }

}  // namespace odmiennik::window_test

#include "tooltips_test.moc"
