// SPDX-License-Identifier: GPL-3.0-or-later
// No window is closed, and none dies, under a message that stands over it.
#include <QMessageBox>
#include <QPointer>

#include "app/common/qt_message_boxes.h"
#include "tests/window/only_path.h"
#include "tests/window/program_run.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

// A program with the message boxes that the user sees.
struct RunWithBoxes {
  RunWithBoxes() { program.start(); }

  // Chooses a menu item and waits for the window that it opens.
  QPointer<QDialog> open(app::MenuItemName item, const char* name) {
    app::menuItem(*program.window().menuBar(), item).trigger();
    const auto find = [&] { return program.window().findChild<QDialog*>(QString::fromUtf8(name)); };
    if (!QTest::qWaitFor([&] { return find() != nullptr; })) qFatal("no window %s", name);
    return find();
  }

  ProgramHome home;
  app::QtMessageBoxes messages;
  app::Program program{{.folder = Utf8Text(asUtf8(home.path().string())),
                        .messages = messages,
                        .store = home.store,
                        .end = [] {}}};
};

QAbstractButton& button(const QDialog& dialog, const char* name) {
  auto* found = dialog.findChild<QAbstractButton*>(QString::fromUtf8(name));
  if (found == nullptr) qFatal("no button %s", name);
  return *found;
}

// Presses a button, as a screen reader does, and does something while the message stands that comes
// of it; then answers it. False when no message came.
bool pressAndMeanwhile(QAbstractButton& pressed, QMessageBox::StandardButton answer,
                       const std::function<void()>& meanwhile) {
  bool isAnswered = false;
  QTimer poll;
  QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isVisible()) return;
    poll.stop();
    meanwhile();
    isAnswered = true;
    box->button(answer)->click();
  });
  poll.start(1);
  pressed.click();
  return QTest::qWaitFor([&] { return isAnswered; });
}

}  // namespace

class SteadyWindowsSuite : public QObject {
  Q_OBJECT

 private slots:
  void theListStaysUnderTheQuestionThatItHasLedTo();
  void theAboutWindowStaysUnderItsMessage();
  void aMessageGoesWithTheWindowBelowItAndIsNotDeletedTwice();
};

void SteadyWindowsSuite::theListStaysUnderTheQuestionThatItHasLedTo() {
  RunWithBoxes run;
  app::MainWindow& window = run.program.window();
  window.boxes().entry().setText("aimer");
  QVERIFY(run.program.editing().edit());
  window.boxes()[0].setText("aimechange");
  const QPointer<QDialog> list = run.open("mnuEdycjaLista", "frmLista");
  list->findChild<QComboBox*>("cmbLista")->setCurrentIndex(26);
  const bool isAsked = pressAndMeanwhile(button(*list, "cmdOdmień"), QMessageBox::Yes, [&list] {
    button(*list, "cmdZamknij").click();
    QVERIFY(!list->close());
    QCoreApplication::processEvents();
  });
  QVERIFY(isAsked);
  QVERIFY(!list.isNull() && list->isVisible());
  QTRY_COMPARE(window.boxes().entry().text(), "zapper");
  QVERIFY(run.home.read("Czasowniki.dat").starts_with("aimechange,"));
  button(*list, "cmdZamknij").click();
  QTRY_VERIFY(list.isNull());
}

void SteadyWindowsSuite::theAboutWindowStaysUnderItsMessage() {
  const OnlyPath nothing;
  RunWithBoxes run;
  const QPointer<QDialog> about = run.open("mnuPomocOProgramie", "frmAbout");
  const bool isTold = pressAndMeanwhile(button(*about, "cmdSysInfo"), QMessageBox::Ok, [&about] {
    button(*about, "cmdOK").click();
    QVERIFY(!about->close());
    QCoreApplication::processEvents();
  });
  QVERIFY(isTold);
  QVERIFY(!about.isNull() && about->isVisible());
  button(*about, "cmdOK").click();
  QTRY_VERIFY(about.isNull());
}

// A window that is not the program's own, as those of a print dialog, may go at any time.
void SteadyWindowsSuite::aMessageGoesWithTheWindowBelowItAndIsNotDeletedTwice() {
  auto* below = new QWidget;
  below->show();
  QVERIFY(QTest::qWaitForWindowActive(below));
  QTimer::singleShot(0, below, [below] { delete below; });
  app::QtMessageBoxes messages;
  QCOMPARE(messages.show(dictionary::MessageId::saveEditedVerb, "aimer"),
           dictionary::Button::cancel);
  QVERIFY(QApplication::activeModalWidget() == nullptr);
}

std::unique_ptr<QObject> steadyWindowsSuite() { return std::make_unique<SteadyWindowsSuite>(); }

}  // namespace odmiennik::window_test

#include "steady_windows_test.moc"
