// The demonstrations, with their clock sped up, from their beginning to an end.
#include "app/demonstration/demonstration.h"

#include <QComboBox>
#include <QListWidget>
#include <QSignalSpy>

#include "app/common/beside.h"
#include "app/common/text.h"
#include "tests/window/edited_program.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

constexpr int kLimit = 20000;  // milliseconds; a demonstration that is sped up takes far less

// A pointer that is only written down, or that cannot be moved.
struct WrittenPointer {
  bool isMovable = true;
  QPoint place{5, 6};
  std::vector<QPoint> path;

  app::ScreenPointer port() {
    return {.position = [this] { return place; },
            .moveTo =
                [this](QPoint to) {
                  if (!isMovable) return false;
                  path.push_back(place = to);
                  return true;
                }};
  }
};

}  // namespace

class DemonstrationSuite : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void theFirstTypesAVerbAndConjugatesIt();
  void theFirstTypesOneLetterATick();
  void theSecondPicksAVerbFromTheList();
  void thePointerGoesToTheBoxInSmallSteps();
  void wherePointersCannotBeMovedBothStillConjugate();
  void completionIsOffWhileAVerbIsTyped();
  void everythingIsAsBeforeAfterTheEnd_data();
  void everythingIsAsBeforeAfterTheEnd();
  void aKeyStopsIt();
  void aMouseButtonStopsIt();
  void aShortcutStopsItAndDoesNothingElse();
  void stoppedAmongTheLettersTheTextComesBack();
  void stoppedInTheListTheListIsClosed();
  void inEditModeItAsksToSaveFirst();
  void anEditedVerbThatIsKeptKeepsItFromBeginning();
  void theWindowStandsBesideTheMainOneAndOnTheScreen();

 private:
  [[nodiscard]] app::DemonstrationRunner& runner() { return *runner_; }
  void toItsEnd(int way);
  void verifyAtRest();
  [[nodiscard]] QDialog* list() {
    return program_->window.findChild<QDialog*>(QStringLiteral("frmLista"));
  }

  std::unique_ptr<EditedProgram> program_;
  WrittenPointer pointer_;
  std::unique_ptr<app::DemonstrationRunner> runner_;
};

void DemonstrationSuite::init() {
  program_ = std::make_unique<EditedProgram>();
  pointer_ = {};
  runner_ = std::make_unique<app::DemonstrationRunner>(
      program_->window, program_->program.editing(), pointer_.port());
  runner_->setPace(0);
}

void DemonstrationSuite::cleanup() {
  runner_.reset();
  program_.reset();
}

void DemonstrationSuite::toItsEnd(int way) {
  runner().run(way);
  QVERIFY(runner().isRunning());
  QTRY_VERIFY_WITH_TIMEOUT(!runner().isRunning(), kLimit);
}

void DemonstrationSuite::verifyAtRest() {
  for (const char* name : {"timCzas", "timCzas2", "timCzasClick", "timCzasLiterki"}) {
    const auto timers = program_->window.findChildren<QTimer*>(QLatin1String(name));
    QVERIFY2(!timers.isEmpty(), name);
    for (const QTimer* timer : timers) QVERIFY2(!timer->isActive(), name);
  }
  QVERIFY(list() == nullptr || !list()->isVisible());
  QVERIFY(QApplication::activePopupWidget() == nullptr);
  QCOMPARE(pointer_.place, QPoint(5, 6));
}

void DemonstrationSuite::theFirstTypesAVerbAndConjugatesIt() {
  toItsEnd(0);
  QTRY_COMPARE(program_->form(0), "chante");
  QCOMPARE(program_->form(96), "chanter");
  verifyAtRest();
}

void DemonstrationSuite::theFirstTypesOneLetterATick() {
  QStringList texts;
  connect(&program_->entry(), &QLineEdit::textChanged, this,
          [&](const QString& text) { texts.append(text); });
  toItsEnd(0);
  QCOMPARE(texts.mid(0, 7), (QStringList{"c", "ch", "cha", "chan", "chant", "chante", "chanter"}));
}

void DemonstrationSuite::theSecondPicksAVerbFromTheList() {
  toItsEnd(1);
  QTRY_COMPARE(program_->form(96), "naître");
  QCOMPARE(program_->form(0), "nais");
  QVERIFY(list() != nullptr);
  QCOMPARE(list()->findChild<QComboBox*>("cmbLista")->currentText(), "n");
  verifyAtRest();
}

void DemonstrationSuite::thePointerGoesToTheBoxInSmallSteps() {
  toItsEnd(0);
  const QPoint box = program_->entry().mapToGlobal(program_->entry().rect().center());
  QVERIFY(pointer_.path.size() > 15);
  QCOMPARE(pointer_.path[pointer_.path.size() - 2], box);  // the last is the way back
  QPoint last(5, 6);
  for (std::size_t i = 0; i + 1 < pointer_.path.size(); ++i) {
    QVERIFY((pointer_.path[i] - last).manhattanLength() < 90);
    last = pointer_.path[i];
  }
}

void DemonstrationSuite::wherePointersCannotBeMovedBothStillConjugate() {
  pointer_.isMovable = false;
  toItsEnd(0);
  QTRY_COMPARE(program_->form(0), "chante");
  toItsEnd(1);
  QTRY_COMPARE(program_->form(0), "nais");
  QVERIFY(pointer_.path.empty());
  verifyAtRest();
}

void DemonstrationSuite::completionIsOffWhileAVerbIsTyped() {
  QAction& completion = app::menuItem(*program_->window.menuBar(), "mnuCzasownikAutouzupełnianie");
  completion.setChecked(true);
  bool wasOn = false;
  connect(&program_->entry(), &QLineEdit::textEdited, this,
          [&] { wasOn = wasOn || completion.isChecked(); });
  toItsEnd(0);
  QVERIFY(!wasOn);
  QVERIFY(completion.isChecked());
  QVERIFY(program_->store.isCompletionOn());
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
  QAction& completion = app::menuItem(*program_->window.menuBar(), "mnuCzasownikAutouzupełnianie");
  completion.setChecked(isCompletionOn);
  toItsEnd(way);
  verifyAtRest();
  QCOMPARE(completion.isChecked(), isCompletionOn);
  QVERIFY(program_->messages.shown.empty());
}

void DemonstrationSuite::aKeyStopsIt() {
  runner().run(0);
  QTest::keyClick(&program_->entry(), Qt::Key_X);
  QVERIFY(!runner().isRunning());
  QCOMPARE(program_->entry().text(), "infinitif");
  verifyAtRest();
}

void DemonstrationSuite::aMouseButtonStopsIt() {
  QSignalSpy finished(&runner(), &app::DemonstrationRunner::finished);
  runner().run(1);
  QTest::mouseClick(&program_->widget<QPushButton>("cmdOdmień"), Qt::LeftButton);
  QVERIFY(!runner().isRunning());
  QCOMPARE(finished.size(), 1);
  QCoreApplication::processEvents();
  QCOMPARE(program_->form(0), "");  // the button that stopped it was not clicked
  verifyAtRest();
}

void DemonstrationSuite::aShortcutStopsItAndDoesNothingElse() {
  QAction command;
  command.setShortcut(Qt::Key_F5);
  program_->window.addAction(&command);
  QSignalSpy commanded(&command, &QAction::triggered);
  runner().run(0);
  QTest::keyClick(&program_->entry(), Qt::Key_F5);
  QVERIFY(!runner().isRunning());
  QVERIFY(commanded.isEmpty());
  QTest::keyClick(&program_->entry(), Qt::Key_F5);
  QCOMPARE(commanded.size(), 1);
}

void DemonstrationSuite::stoppedAmongTheLettersTheTextComesBack() {
  connect(&program_->entry(), &QLineEdit::textChanged, &runner(), [&](const QString& text) {
    if (text != "cha") return;
    QMetaObject::invokeMethod(
        &runner(), [&] { QTest::keyClick(&program_->entry(), Qt::Key_Escape); },
        Qt::QueuedConnection);
  });
  toItsEnd(0);
  QCOMPARE(program_->entry().text(), "infinitif");
  QCOMPARE(program_->form(0), "");
  verifyAtRest();
}

void DemonstrationSuite::stoppedInTheListTheListIsClosed() {
  runner().setPace(0.2);  // slow enough for the list to be seen
  runner().run(1);
  QTRY_VERIFY_WITH_TIMEOUT(list() != nullptr && list()->isVisible(), kLimit);
  QVERIFY(runner().isRunning());
  QTest::mouseClick(list(), Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
  QVERIFY(!runner().isRunning());
  verifyAtRest();
}

void DemonstrationSuite::inEditModeItAsksToSaveFirst() {
  program_->edit("parler");
  program_->box(0).setText("x");
  QTest::keyClick(&program_->box(0), Qt::Key_Y);
  program_->messages.answer = dictionary::Button::no;
  toItsEnd(0);
  QCOMPARE(program_->messages.shown.size(), 1U);
  QVERIFY(!program_->isEditing());
  QTRY_COMPARE(program_->form(0), "chante");
}

// deliberate: edit mode is left like by every other command; what stops these stops it too.
void DemonstrationSuite::anEditedVerbThatIsKeptKeepsItFromBeginning() {
  struct Kept final : dictionary::MainCommands {
    int asked = 0;
    bool isEditing() const override { return true; }
    bool edit() override { return ++asked == 0; }
    bool newVerb() override { return false; }
    bool conjugate(std::string_view) override { return false; }
    bool print() override { return false; }
  } kept;
  app::DemonstrationRunner other(program_->window, kept, pointer_.port());
  other.run(0);
  QCOMPARE(kept.asked, 1);
  QVERIFY(!other.isRunning());
  verifyAtRest();
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
