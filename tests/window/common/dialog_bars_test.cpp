// SPDX-License-Identifier: GPL-3.0-or-later
// The title bars that dialogs get where Qt draws frames: the offscreen platform has such frames.
#include <QLabel>
#include <QMessageBox>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

#include "app/common/dialog_bars.h"
#include "tests/window/program_under_test.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

QToolButton* closer(const QWidget& dialog) {
  return dialog.findChild<QToolButton*>("cmdZamknijOkno");
}

// A dialog of one text, among framed windows.
struct TextDialog {
  TextDialog() {
    other.show();
    auto* rows = new QVBoxLayout(&dialog);
    rows->addWidget(text);
    dialog.setWindowTitle("Okno");
    dialog.show();
  }

  QWidget other;
  app::DialogBars bars{nullptr};
  QDialog dialog;
  QLabel* text = new QLabel("tekst");
};

}  // namespace

class DialogBarsSuite : public QObject {
  Q_OBJECT

 private slots:
  void theFrameIsNotDrawnByQtAnyMore();
  void theBarSaysTheCaptionAboveWhatIsInTheDialog();
  void theBarFollowsTheCaption();
  void itsOneButtonClosesTheDialog();
  void aMessageHasRoomForItsTextAndItsButtons();
  void theMainWindowAndWindowsWithoutAFrameAreLeftAlone();
};

void DialogBarsSuite::theFrameIsNotDrawnByQtAnyMore() {
  const TextDialog shown;
  QVERIFY(shown.dialog.windowHandle()->flags().testFlag(Qt::FramelessWindowHint));
  QVERIFY(!shown.other.windowHandle()->flags().testFlag(Qt::FramelessWindowHint));
}

void DialogBarsSuite::theBarSaysTheCaptionAboveWhatIsInTheDialog() {
  const TextDialog shown;
  const auto& bar = *shown.dialog.findChild<QWidget*>("pasekTytułu");
  QVERIFY(bar.isVisible());
  QCOMPARE(bar.findChild<QLabel*>()->text(), "Okno");
  QVERIFY(bar.geometry().bottom() < shown.text->y());
  QVERIFY(shown.dialog.rect().contains(bar.geometry().united(shown.text->geometry())));
  QVERIFY(shown.text->height() >= shown.text->sizeHint().height());
}

void DialogBarsSuite::theBarFollowsTheCaption() {
  TextDialog shown;
  shown.dialog.setWindowTitle("Inne");
  QCOMPARE(shown.dialog.findChild<QWidget*>("pasekTytułu")->findChild<QLabel*>()->text(), "Inne");
}

void DialogBarsSuite::itsOneButtonClosesTheDialog() {
  const TextDialog shown;
  QCOMPARE(shown.dialog.findChildren<QToolButton*>().size(), 1);
  QCOMPARE(closer(shown.dialog)->accessibleName(), "Zamknij okno");
  closer(shown.dialog)->click();
  QTRY_VERIFY(!shown.dialog.isVisible());
}

void DialogBarsSuite::aMessageHasRoomForItsTextAndItsButtons() {
  const TextDialog framed;
  QMessageBox box(QMessageBox::Question, "Pytanie", "Zapisać edytowany czasownik?",
                  QMessageBox::Yes | QMessageBox::No);
  box.show();
  QVERIFY(closer(box) != nullptr);
  for (const QWidget* part : box.findChildren<QWidget*>()) {
    if (!part->isVisible()) continue;
    QVERIFY2(box.rect().contains(QRect(part->mapTo(&box, QPoint()), part->size())),
             part->metaObject()->className());
  }
}

void DialogBarsSuite::theMainWindowAndWindowsWithoutAFrameAreLeftAlone() {
  const ProgramUnderTest program;
  const app::DialogBars bars(nullptr);
  QDialog bare(nullptr, Qt::Dialog | Qt::FramelessWindowHint);
  auto* rows = new QVBoxLayout(&bare);
  rows->addWidget(new QLabel("tekst"));
  bare.show();
  QVERIFY(closer(bare) == nullptr);
  program.window.hide();
  program.window.show();
  QVERIFY(closer(program.window) == nullptr);
  QVERIFY(!program.window.windowHandle()->flags().testFlag(Qt::FramelessWindowHint));
}

std::unique_ptr<QObject> dialogBarsSuite() { return std::make_unique<DialogBarsSuite>(); }

}  // namespace odmiennik::window_test

#include "dialog_bars_test.moc"
