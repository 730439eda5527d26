// SPDX-License-Identifier: GPL-3.0-or-later
// F1, wherever it is pressed.
#include <QDialog>
#include <QMenu>
#include <QMessageBox>
#include <QTimer>

#include "app/common/qt_message_boxes.h"
#include "tests/window/help_under_test.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

// What is done to a window as soon as it stands in front, from inside the loop that waits for it.
class WindowInFront final : public QObject {
 public:
  WindowInFront(QString name, std::function<void(QDialog&)> visit)
      : name_(std::move(name)), visit_(std::move(visit)) {
    connect(&poll_, &QTimer::timeout, this, &WindowInFront::look);
    poll_.start(1);
  }

 private:
  void look() {
    auto* window = qobject_cast<QDialog*>(QApplication::activeWindow());
    if (window == nullptr || window->objectName() != name_) return;
    poll_.stop();
    visit_(*window);
  }

  QString name_;
  std::function<void(QDialog&)> visit_;
  QTimer poll_;
};

}  // namespace

class HelpKeySuite : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { skipWithoutHelpFile(); }
  void init() { help_ = std::make_unique<HelpUnderTest>(); }
  void cleanup() { help_.reset(); }

  void f1InAFormBoxOpensThePageOfItsTense_data();
  void f1InAFormBoxOpensThePageOfItsTense();
  void f1OpensThePageOfEveryWindow_data();
  void f1OpensThePageOfEveryWindow();
  void f1InTheColourChooserOpensThePageOfTheColours();
  void f1InThePrintDialogOfTheHelpLeavesTheHelpBesideTheProgram();
  void f1InAMessageOpensThePageOfItsWindow();
  void theHelpCanBeUsedWhileAModalWindowIsOpen();
  void f1WithAnotherKeyOrInAMenuDoesNothing();

 private:
  // Presses F1 in a window, wherever its focus is, and closes the help again.
  QString pageBehindF1(QDialog& window) {
    QWidget* focus = QApplication::focusWidget();
    QTest::keyClick(focus == nullptr ? &window : focus, Qt::Key_F1);
    const QString page = help_->pages().source().fileName();
    help_->widget<QDialog>("frmPomoc").close();
    return page;
  }

  std::unique_ptr<HelpUnderTest> help_;
};

void HelpKeySuite::f1InAFormBoxOpensThePageOfItsTense_data() {
  QTest::addColumn<int>("slot");
  QTest::addColumn<QString>("page");
  QTest::newRow("indicatif présent") << 5 << "PresentIndicatif";
  QTest::newRow("passé antérieur") << 36 << "PasséAntérieur";
  QTest::newRow("conditionnel passé 2") << 89 << "ConditionnelPassé2";
  QTest::newRow("impératif présent") << 91 << "PrésentImpératif";
  QTest::newRow("entry box") << 96 << "default";
  QTest::newRow("infinitif passé") << 97 << "InfinitifPasse";
  QTest::newRow("participe présent") << 98 << "ParticipePresent";
  QTest::newRow("participe passé") << 99 << "ParticipePasse";
  QTest::newRow("participe composé") << 100 << "ParticipeCompose";
}

void HelpKeySuite::f1InAFormBoxOpensThePageOfItsTense() {
  QFETCH(int, slot);
  QFETCH(QString, page);
  help_->box(slot).setFocus();
  QTest::keyClick(&help_->box(slot), Qt::Key_F1);
  QCOMPARE(help_->pages().source().path(), "/strony/" + page + ".htm");
  QVERIFY(help_->messages.shown.empty());
}

void HelpKeySuite::f1OpensThePageOfEveryWindow_data() {
  QTest::addColumn<QString>("item");
  QTest::addColumn<QString>("window");
  QTest::addColumn<QString>("page");
  const auto row = [](const char* item, const char* window, const char* page) {
    QTest::newRow(window) << QString::fromUtf8(item) << window << page;
  };
  row("mnuEdycjaLista", "frmLista", "Lista.htm");
  row("mnuCzasownikZnajdź", "frmZnajdź", "OdFormy.htm");
  row("mnuWidokKolory", "frmKolory", "Litery.htm");
  row("mnuPlikUstawieniaDrukarki", "dlgCommonDialog", "Drukowanie.htm");
  row("mnuPomocPoradaDnia", "frmTip", "default.htm");
  row("mnuPomocOProgramie", "frmAbout", "default.htm");
  row("mnuPomocTematy", "frmPomoc", "OknoPomocy.htm");
}

void HelpKeySuite::f1OpensThePageOfEveryWindow() {
  QFETCH(QString, item);
  QFETCH(QString, window);
  QFETCH(QString, page);
  QString opened;
  const WindowInFront visit(window, [&](QDialog& front) {
    opened = pageBehindF1(front);
    front.reject();
  });
  help_->item(item.toUtf8()).trigger();
  QTRY_COMPARE(opened, page);
}

void HelpKeySuite::f1InTheColourChooserOpensThePageOfTheColours() {
  QString opened;
  const WindowInFront colours("frmKolory", [&](QDialog& window) {
    auto* change = window.findChild<QPushButton*>(QString::fromUtf8("cmdZmień_0"));
    QTimer::singleShot(0, change, &QPushButton::click);
  });
  const WindowInFront chooser("CommonDialog1", [&](QDialog& window) {
    opened = pageBehindF1(window);
    window.reject();
    QTimer::singleShot(0, &help_->widget<QDialog>("frmKolory"), &QDialog::reject);
  });
  help_->item("mnuWidokKolory").trigger();
  QTRY_COMPARE(opened, "Litery.htm");
}

void HelpKeySuite::f1InThePrintDialogOfTheHelpLeavesTheHelpBesideTheProgram() {
  help_->viewer().open("strony\\PasseSimple.htm");
  help_->press("cmdDrukuj");
  auto* viewer = &help_->widget<QDialog>("frmPomoc");
  QTRY_VERIFY(QApplication::activeModalWidget() != nullptr);
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  QCOMPARE(dialog->parentWidget(), viewer);
  QTRY_COMPARE(QApplication::activeWindow(), dialog);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
  QCOMPARE(help_->pages().source().fileName(), "OknoPomocy.htm");
  QCOMPARE(viewer->windowModality(), Qt::NonModal);
  QVERIFY(dialog->isVisible());
  dialog->reject();
}

// The message waits while the help is read, and is answered then.
void HelpKeySuite::f1InAMessageOpensThePageOfItsWindow() {
  help_->item("mnuEdycjaLista").trigger();
  QTRY_VERIFY(QApplication::activeWindow()->objectName() == "frmLista");
  QString opened;
  QTimer poll;
  connect(&poll, &QTimer::timeout, this, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isActiveWindow()) return;
    poll.stop();
    opened = pageBehindF1(*box);
    QTest::keyClick(box, Qt::Key_Escape);
  });
  poll.start(1);
  app::QtMessageBoxes messages;
  QCOMPARE(messages.show(dictionary::MessageId::endProgram), dictionary::Button::no);
  QCOMPARE(opened, "Lista.htm");
}

void HelpKeySuite::theHelpCanBeUsedWhileAModalWindowIsOpen() {
  help_->viewer().open("strony\\default.htm");
  auto& viewer = help_->widget<QDialog>("frmPomoc");
  QCOMPARE(viewer.windowModality(), Qt::NonModal);
  QDialog dialog(&help_->window);
  dialog.setWindowModality(Qt::ApplicationModal);
  dialog.show();
  QTRY_COMPARE(QApplication::activeWindow(), &dialog);
  QTest::keyClick(&dialog, Qt::Key_F1);
  QCOMPARE(QApplication::activeModalWidget(), &viewer);
  QVERIFY(viewer.isVisible());
  viewer.close();
  dialog.close();
  help_->viewer().open("strony\\default.htm");
  QCOMPARE(viewer.windowModality(), Qt::NonModal);
}

void HelpKeySuite::f1WithAnotherKeyOrInAMenuDoesNothing() {
  QTest::keyClick(&help_->entry(), Qt::Key_F1, Qt::ControlModifier);
  QMenu menu(&help_->window);
  menu.addAction("a");
  menu.popup({0, 0});
  QTest::keyClick(&menu, Qt::Key_F1);
  menu.close();
  QVERIFY(help_->window.findChild<QDialog*>("frmPomoc") == nullptr);
}

std::unique_ptr<QObject> helpKeySuite() { return std::make_unique<HelpKeySuite>(); }

}  // namespace odmiennik::window_test

#include "help_key_test.moc"
