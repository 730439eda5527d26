// SPDX-License-Identifier: GPL-3.0-or-later
// The demonstrations, with their clock sped up, from their beginning to their end.
#include <QComboBox>
#include <QListWidget>

#include "app/common/beside.h"
#include "app/common/text.h"
#include "tests/window/demonstrated_program.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

// A desktop that closes every menu and drop-down list which the user did not open himself.
class RefusedPopups final : public QObject {
 public:
  RefusedPopups() { qApp->installEventFilter(this); }
  int closed = 0;

  bool eventFilter(QObject* shown, QEvent* event) override {
    auto* widget = qobject_cast<QWidget*>(shown);
    if (event->type() != QEvent::Show || widget == nullptr) return false;
    if (widget->windowType() != Qt::Popup) return false;
    ++closed;
    QMetaObject::invokeMethod(widget, &QWidget::close, Qt::QueuedConnection);
    return false;
  }
};

}  // namespace

class DemonstrationSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() { shown_ = std::make_unique<DemonstratedProgram>(); }
  void cleanup() { shown_.reset(); }

  void theFirstTypesAVerbAndConjugatesIt();
  void theFirstTypesOneLetterATick();
  void theSecondPicksAVerbFromTheList();
  void thePointerGoesToTheBoxInSmallSteps();
  void wherePointersCannotBeMovedBothStillConjugate();
  void whereNothingStaysOpenTheSecondStillPicksItsVerb();
  void aLetterTakenDirectlyCanBeChosenAgain();
  void itWaitsUntilTheWindowIsActive();
  void nothingIsCompletedWhileAVerbIsTyped();
  void theSwitchOfTheCompletionIsNotTouched();
  void everythingIsAsBeforeAfterTheEnd_data();
  void everythingIsAsBeforeAfterTheEnd();
  void inEditModeItAsksToSaveFirst();
  void anEditedVerbThatIsKeptKeepsItFromBeginning();
  void theWindowStandsBesideTheMainOneAndOnTheScreen();

 private:
  std::unique_ptr<DemonstratedProgram> shown_;
};

void DemonstrationSuite::theFirstTypesAVerbAndConjugatesIt() {
  shown_->toItsEnd(0);
  QTRY_COMPARE(shown_->form(0), "chante");
  QCOMPARE(shown_->form(96), "chanter");
  shown_->verifyAtRest();
}

void DemonstrationSuite::theFirstTypesOneLetterATick() {
  QStringList texts;
  connect(&shown_->entry(), &QLineEdit::textChanged, this,
          [&](const QString& text) { texts.append(text); });
  shown_->toItsEnd(0);
  QCOMPARE(texts.mid(0, 7), (QStringList{"c", "ch", "cha", "chan", "chant", "chante", "chanter"}));
}

void DemonstrationSuite::theSecondPicksAVerbFromTheList() {
  QString letter;  // that is chosen when the verb comes: the list is closed afterwards
  connect(&shown_->box(0), &QLineEdit::textChanged, this, [&] {
    if (shown_->list() != nullptr)
      letter = shown_->list()->findChild<QComboBox*>("cmbLista")->currentText();
  });
  shown_->toItsEnd(1);
  QTRY_COMPARE(shown_->form(96), "naître");
  QCOMPARE(shown_->form(0), "nais");
  QCOMPARE(letter, "n");
  shown_->verifyAtRest();
}

void DemonstrationSuite::thePointerGoesToTheBoxInSmallSteps() {
  shown_->toItsEnd(0);
  const QPoint box = shown_->entry().mapToGlobal(shown_->entry().rect().center());
  QVERIFY(shown_->pointer.path.size() > 15);
  QCOMPARE(shown_->pointer.path[shown_->pointer.path.size() - 2], box);  // the last is the way back
  QPoint last(5, 6);
  for (std::size_t i = 0; i + 1 < shown_->pointer.path.size(); ++i) {
    QVERIFY((shown_->pointer.path[i] - last).manhattanLength() < 90);
    last = shown_->pointer.path[i];
  }
}

void DemonstrationSuite::wherePointersCannotBeMovedBothStillConjugate() {
  shown_->pointer.isMovable = false;
  shown_->toItsEnd(0);
  QTRY_COMPARE(shown_->form(0), "chante");
  shown_->toItsEnd(1);
  QTRY_COMPARE(shown_->form(0), "nais");
  QVERIFY(shown_->pointer.path.empty());
  shown_->verifyAtRest();
}

void DemonstrationSuite::whereNothingStaysOpenTheSecondStillPicksItsVerb() {
  const RefusedPopups desktop;
  shown_->pointer.isMovable = false;
  shown_->toItsEnd(1);
  QTRY_COMPARE(shown_->form(0), "nais");
  QCOMPARE(desktop.closed, 2);  // the menu and the letters
  shown_->verifyAtRest();
}

// The list has learnt of the letter as of any other choice: the user's verbs are read anew.
void DemonstrationSuite::aLetterTakenDirectlyCanBeChosenAgain() {
  const RefusedPopups desktop;
  shown_->toItsEnd(1);
  shown_->item("mnuEdycjaLista").trigger();
  QTRY_VERIFY(shown_->list() != nullptr && shown_->list()->isVisible());
  auto& choice = *shown_->list()->findChild<QComboBox*>("cmbLista");
  QCOMPARE(choice.currentIndex(), 0);
  QCOMPARE(shown_->list()->findChild<QListWidget*>("lstCzasowniki")->count(), 0);
  QTest::keyClick(&choice, Qt::Key_N);
  QCOMPARE(choice.currentText(), "n");
  QVERIFY(shown_->list()->findChild<QListWidget*>("lstCzasowniki")->count() > 0);
}

void DemonstrationSuite::itWaitsUntilTheWindowIsActive() {
  int ticks = 0;
  for (const QTimer* timer : shown_->window.findChildren<QTimer*>("timCzas"))
    connect(timer, &QTimer::timeout, this, [&] { ++ticks; });
  QWidget other;
  other.show();
  other.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&other));
  shown_->runner.run(0);
  other.activateWindow();  // the desktop's answer to the demonstration, which asked for itself
  QTRY_VERIFY(ticks > 3);
  QCOMPARE(shown_->entry().text(), "infinitif");
  QVERIFY(shown_->runner.isRunning());
  shown_->window.activateWindow();
  QTRY_COMPARE_WITH_TIMEOUT(shown_->form(0), "chante", kDemonstrationLimit);
}

void DemonstrationSuite::nothingIsCompletedWhileAVerbIsTyped() {
  bool isCompleted = false;
  connect(&shown_->entry(), &QLineEdit::textChanged, this,
          [&, before = QString()](auto text) mutable {
            isCompleted = isCompleted || (!before.isEmpty() && text.size() > before.size() + 1);
            before = text;
          });
  shown_->toItsEnd(0);
  QVERIFY(!isCompleted);
  shown_->entry().selectAll();
  shown_->type("all");
  QCOMPARE(shown_->entry().text(), "allaiter");
}

// Whatever ends the program meanwhile, completion is there again at the next start.
void DemonstrationSuite::theSwitchOfTheCompletionIsNotTouched() {
  const QAction& completion =
      app::menuItem(*shown_->window.menuBar(), "mnuCzasownikAutouzupełnianie");
  int switched = 0;
  connect(&completion, &QAction::toggled, this, [&] { ++switched; });
  shown_->toItsEnd(0);
  QCOMPARE(switched, 0);
  QVERIFY(completion.isChecked() && shown_->store.isCompletionOn());
}

void DemonstrationSuite::everythingIsAsBeforeAfterTheEnd_data() {
  QTest::addColumn<int>("way");
  QTest::addColumn<bool>("isCompletionOn");
  QTest::newRow("first, switched on") << 0 << true;
  QTest::newRow("first, switched off") << 0 << false;
  QTest::newRow("second, switched on") << 1 << true;
  QTest::newRow("second, switched off") << 1 << false;
}

void DemonstrationSuite::everythingIsAsBeforeAfterTheEnd() {
  QFETCH(int, way);
  QFETCH(bool, isCompletionOn);
  QAction& completion = app::menuItem(*shown_->window.menuBar(), "mnuCzasownikAutouzupełnianie");
  if (!isCompletionOn) completion.trigger();
  shown_->toItsEnd(way);
  shown_->verifyAtRest();
  QCOMPARE(completion.isChecked(), isCompletionOn);
  QVERIFY(shown_->messages.shown.empty());
}

void DemonstrationSuite::inEditModeItAsksToSaveFirst() {
  shown_->edit("parler");
  shown_->box(0).setText("x");
  QTest::keyClick(&shown_->box(0), Qt::Key_Y);
  shown_->messages.answer = dictionary::Button::no;
  shown_->toItsEnd(0);
  QCOMPARE(shown_->messages.shown.size(), 1U);
  QVERIFY(!shown_->isEditing());
  QTRY_COMPARE(shown_->form(0), "chante");
}

// deliberate: edit mode is left like by every other command; what stops these stops it too.
void DemonstrationSuite::anEditedVerbThatIsKeptKeepsItFromBeginning() {
  struct Kept final : app::MainCommands {
    int asked = 0;
    bool isEditing() const override { return true; }
    bool edit() override { return ++asked == 0; }
    bool newVerb() override { return false; }
    bool conjugate(std::string_view) override { return false; }
    bool print() override { return false; }
  } kept;
  app::DemonstrationRunner other(
      shown_->window, kept, [](bool) {}, shown_->pointer.port());
  other.run(0);
  QCOMPARE(kept.asked, 1);
  QVERIFY(!other.isRunning());
  shown_->verifyAtRest();
}

void DemonstrationSuite::theWindowStandsBesideTheMainOneAndOnTheScreen() {
  const QRect screen(0, 0, 1000, 700);
  const QSize size(300, 200);
  QCOMPARE(app::besidePlace({100, 50, 500, 400}, size, screen), QPoint(600, 50));
  QCOMPARE(app::besidePlace({400, 50, 500, 400}, size, screen), QPoint(100, 50));
  QCOMPARE(app::besidePlace({100, 50, 800, 400}, size, screen), QPoint(700, 50));
  QCOMPARE(app::besidePlace({100, 650, 500, 400}, size, screen), QPoint(600, 500));
  QCOMPARE(app::besidePlace({-20, -30, 1040, 760}, {1200, 900}, screen), QPoint(0, 0));
}

std::unique_ptr<QObject> demonstrationSuite() { return std::make_unique<DemonstrationSuite>(); }

}  // namespace odmiennik::window_test

#include "demonstration_test.moc"
