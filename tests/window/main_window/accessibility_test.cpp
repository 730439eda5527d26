// SPDX-License-Identifier: GPL-3.0-or-later
// Every window as a screen reader and a keyboard meet it.
#include <QAccessible>
#include <QComboBox>
#include <QListWidget>
#include <QSet>
#include <QShortcut>

#include "app/about/about_window.h"
#include "app/common/text.h"
#include "app/help/help_window.h"
#include "app/list/list_window.h"
#include "app/logic/tense_topics.h"
#include "app/tips/tip_window.h"
#include "app/view/colour_window.h"
#include "tests/window/edited_program.h"
#include "tests/window/program_under_test.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

// What Tab reaches while the window is shown.
QList<QWidget*> reachedControls(QWidget& window) {
  QList<QWidget*> controls;
  for (QWidget* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain())
    if (next->window() == &window && next->isVisibleTo(&window) && next->isEnabled() &&
        (next->focusPolicy() & Qt::TabFocus) != 0)
      controls.push_back(next);
  return controls;
}

QString accessibleName(QWidget& control) {
  return QAccessible::queryAccessibleInterface(&control)->text(QAccessible::Name);
}

// deliberate: the two buttons that change a colour are both captioned "Zmień"; a description tells
// which is which.
QString spokenAs(QWidget& control) {
  if (!control.objectName().startsWith("cmdZmień_")) return accessibleName(control);
  return control.accessibleDescription();
}

QString accessKey(const QString& caption) {
  const qsizetype mark = caption.indexOf('&');
  return mark < 0 ? QString() : caption.mid(mark + 1, 1).toLower();
}

// The first control without a name or with another's name; empty when there is none.
QString faultOfNames(QWidget& window) {
  QSet<QString> names;
  for (QWidget* control : reachedControls(window)) {
    if (accessibleName(*control).isEmpty()) return control->objectName() + " has no name";
    if (names.contains(spokenAs(*control))) return control->objectName() + " has another's name";
    names.insert(spokenAs(*control));
  }
  return names.isEmpty() ? "nothing is reached" : QString();
}

// The first control that stands above and left of the one before it in the order of Tab. Reading
// goes down a block and then to the next one right of it or below.
QString faultOfOrder(QWidget& window) {
  QPoint before;
  for (QWidget* control : reachedControls(window)) {
    const QPoint place = control->mapTo(&window, QPoint());
    if (place.x() < before.x() && place.y() < before.y()) return control->objectName();
    before = place;
  }
  return {};
}

}  // namespace

class AccessibilitySuite : public QObject {
  Q_OBJECT

 private slots:
  void init() { program_ = std::make_unique<ProgramUnderTest>(); }
  void cleanup() { program_.reset(); }

  void everyControlOfTheMainWindowHasANameOfItsOwn();
  void everyControlOfTheMainWindowIsReachedWithTab();
  void everyWindowsControlsHaveNamesOfTheirOwn_data();
  void everyWindowsControlsHaveNamesOfTheirOwn();
  void theOrderOfTheTabKeyIsThatOfReading_data();
  void theOrderOfTheTabKeyIsThatOfReading();
  void noAccessKeyStandsTwiceInAMenu_data();
  void noAccessKeyStandsTwiceInAMenu();
  void deliberateTheMenuBarHasOneAccessKeyTwice();
  void noShortcutStandsTwice();
  void noBoxIsLabelledByWhatWouldHideItsName();
  void everyHeadingStandsAboveTheFirstBoxOfItsTense();
  void everyCaptionOfTheInformationLabelsItsValue();
  void everyHeadingThatOpensAPageHasBoxesWhoseF1OpensIt();
  void theMainWindowsControlsAreUsedWithoutAMouse();
  void aBoxAnswersForEveryOffsetAndBoundary();
  void theWordAtTheEndIsTheLastOne();
  void aLockedBoxIsReadAndNotWritten();
  void aBoxThatIsEditedIsWrittenWithinItsLetters();

 private:
  [[nodiscard]] std::unique_ptr<QDialog> made(const QString& window);
  void addWindows();

  std::unique_ptr<ProgramUnderTest> program_;
  app::QtColourChooser chooser_;
  app::HelpBook book_{app::helpFilePlaces()};
  bool isForced_ = true;
};

std::unique_ptr<QDialog> AccessibilitySuite::made(const QString& window) {
  app::MainWindow& parent = program_->window;
  if (window == "frmLista") {
    auto list = std::make_unique<app::ListWindow>(
        Utf8Text(asUtf8(program_->folder.path().string())) + "/", program_->program.userVerbs(),
        program_->program.editing(), [](QWidget&, const app::SavedList&) {}, &parent);
    list->showFor(app::ListPurpose::list);
    list->findChild<QComboBox*>("cmbLista")->setCurrentIndex(1);
    return list;
  }
  if (window == "frmKolory")
    return std::make_unique<app::ColourWindow>(parent.colours(), chooser_, &parent);
  if (window == "frmTip") {
    auto tip =
        std::make_unique<app::TipWindow>(&parent, program_->store, isForced_, [] { return 0.5; });
    tip->offerDemonstrations([] {});
    return tip;
  }
  if (window == "frmAbout")
    return std::make_unique<app::AboutWindow>(&parent, app::Usage{}, program_->messages);
  auto help = std::make_unique<app::HelpWindow>(book_, program_->store, &parent);
  help->showPage(app::fromUtf8(app::kWelcomePage));
  return help;
}

void AccessibilitySuite::addWindows() {
  QTest::addColumn<QString>("window");
  for (const char* window : {"frmLista", "frmKolory", "frmTip", "frmAbout", "frmPomoc"})
    QTest::newRow(window) << window;
}

void AccessibilitySuite::everyControlOfTheMainWindowHasANameOfItsOwn() {
  QCOMPARE(faultOfNames(program_->window), QString());
}

// The 101 boxes, thirteen letters, the conjugate button; the auxiliary's box where it is enabled.
void AccessibilitySuite::everyControlOfTheMainWindowIsReachedWithTab() {
  QCOMPARE(reachedControls(program_->window).size(), 101 + 13 + 1 + 1);
}

void AccessibilitySuite::everyWindowsControlsHaveNamesOfTheirOwn_data() { addWindows(); }

void AccessibilitySuite::everyWindowsControlsHaveNamesOfTheirOwn() {
  QFETCH(QString, window);
  const auto shown = made(window);
  shown->show();
  QCOMPARE(shown->objectName(), window);
  QCOMPARE(faultOfNames(*shown), QString());
}

void AccessibilitySuite::theOrderOfTheTabKeyIsThatOfReading_data() {
  addWindows();
  QTest::newRow("frmCzasowniki") << "frmCzasowniki";
}

void AccessibilitySuite::theOrderOfTheTabKeyIsThatOfReading() {
  QFETCH(QString, window);
  const auto shown = window == "frmCzasowniki" ? nullptr : made(window);
  if (shown) shown->show();
  QWidget& walked = shown ? static_cast<QWidget&>(*shown) : program_->window;
  QCOMPARE(faultOfOrder(walked), QString());
}

// The caption of the item that edits has a key for each of its states.
void AccessibilitySuite::noAccessKeyStandsTwiceInAMenu_data() {
  QTest::addColumn<int>("timesChosen");
  QTest::newRow("at the start") << 0;
  QTest::newRow("while editing") << 1;
  QTest::newRow("afterwards") << 2;
}

void AccessibilitySuite::noAccessKeyStandsTwiceInAMenu() {
  QFETCH(int, timesChosen);
  for (int i = 0; i < timesChosen; ++i) {
    program_->item("mnuEdycjaEdytujCzasownik").trigger();
    QCoreApplication::processEvents();
  }
  const auto menus = program_->window.menuBar()->actions();
  QCOMPARE(menus.size(), 5);
  for (const QAction* menu : menus) {
    QSet<QString> keys;
    for (const QAction* item : menu->menu()->actions()) {
      const QString key = accessKey(item->text());
      QVERIFY2(key.isEmpty() || !keys.contains(key), qPrintable(item->text()));
      keys.insert(key);
    }
  }
}

void AccessibilitySuite::deliberateTheMenuBarHasOneAccessKeyTwice() {
  QStringList keys;
  for (const QAction* menu : program_->window.menuBar()->actions())
    keys.push_back(accessKey(menu->text()));
  QCOMPARE(keys, QStringList({"p", "e", "c", "w", "c"}));
}

void AccessibilitySuite::noShortcutStandsTwice() {
  QSet<QKeySequence> keys;
  for (const QAction* item : program_->window.findChildren<QAction*>())
    for (const QKeySequence& key : item->shortcuts()) {
      QVERIFY2(!keys.contains(key), qPrintable(key.toString()));
      keys.insert(key);
    }
  for (const QShortcut* shortcut : program_->window.findChildren<QShortcut*>()) {
    QVERIFY2(!keys.contains(shortcut->key()), qPrintable(shortcut->key().toString()));
    keys.insert(shortcut->key());
  }
  for (const auto key : {QKeySequence::Print, QKeySequence::Cut, QKeySequence::Copy,
                         QKeySequence::Paste, QKeySequence::SelectAll, QKeySequence::HelpContents})
    QVERIFY(keys.contains(QKeySequence(key)));
  QVERIFY(keys.contains(QKeySequence(Qt::CTRL | Qt::Key_O)));
}

// Screen readers say a label in the place of the name, and of a drop-down list's choice.
void AccessibilitySuite::noBoxIsLabelledByWhatWouldHideItsName() {
  const auto list = made("frmLista");
  for (QWidget* window :
       {static_cast<QWidget*>(&program_->window), static_cast<QWidget*>(list.get())})
    for (QWidget* control : reachedControls(*window)) {
      auto* heard = QAccessible::queryAccessibleInterface(control);
      QVERIFY2(heard->relations(QAccessible::Label).isEmpty(), qPrintable(control->objectName()));
    }
  QCOMPARE(accessibleName(*list->findChild<QComboBox*>("cmbLista")), "a");
}

void AccessibilitySuite::everyHeadingStandsAboveTheFirstBoxOfItsTense() {
  for (int heading = 0; heading < app::kTenseHeadings; ++heading) {
    const auto& label = program_->widget<QLabel>(QString("lblCzas_%1").arg(heading));
    const auto& box = program_->box(app::kTenseTopics[static_cast<std::size_t>(heading)].firstSlot);
    QVERIFY(label.geometry().bottom() <= box.geometry().top());
    QVERIFY2(label.x() <= box.x() && box.geometry().right() <= label.geometry().right(),
             qPrintable(label.objectName()));
  }
}

void AccessibilitySuite::everyCaptionOfTheInformationLabelsItsValue() {
  for (const char* name :
       {"lblGrupa", "lblPrzechodni", "lblNieprzechodni", "lblPosiłkowy", "lblRząd"})
    QCOMPARE(program_->widget<QLabel>(QString::fromUtf8(name)).buddy(),
             &program_->widget<QLabel>(QString::fromUtf8(name) + "Wartość"));
}

void AccessibilitySuite::everyHeadingThatOpensAPageHasBoxesWhoseF1OpensIt() {
  for (int heading = 0; heading < app::kTopicHeadings; ++heading) {
    const int slot = app::kTenseTopics[static_cast<std::size_t>(heading)].firstSlot;
    QCOMPARE(app::topicOfSlot(slot), app::topicOf(heading));
  }
}

void AccessibilitySuite::theMainWindowsControlsAreUsedWithoutAMouse() {
  program_->conjugate("monter");
  QTest::keyClick(&program_->auxiliary(), Qt::Key_Space);
  QCOMPARE(program_->form(24), "suis monté(e)");
  program_->entry().setFocus();
  program_->entry().clear();
  auto& letter = program_->widget<QPushButton>("cmdFrancuskaLitera_4");
  letter.setFocus();
  QTest::keyClick(&letter, Qt::Key_Space);
  QTRY_COMPARE(program_->entry().text(), "è");
  program_->entry().setText("finir");
  auto& button = program_->widget<QPushButton>("cmdOdmień");
  button.setFocus();
  QTest::keyClick(&button, Qt::Key_Space);
  QTRY_COMPARE(program_->form(0), "finis");
}

namespace {

QAccessibleTextInterface& textOf(QWidget& box) {
  return *QAccessible::queryAccessibleInterface(&box)->textInterface();
}

}  // namespace

// Every question a reader may put is answered, and ends.
void AccessibilitySuite::aBoxAnswersForEveryOffsetAndBoundary() {
  ProgramUnderTest& program = *program_;
  program.conjugate("se lever");
  for (const int slot : {24, 0, 93}) {  // of several words, of two, of none
    QAccessibleTextInterface& text = textOf(program.box(slot));
    const QString form = program.form(slot);
    for (int offset = 0; offset <= form.size(); ++offset)
      for (int boundary = QAccessible::CharBoundary; boundary <= QAccessible::NoBoundary;
           ++boundary) {
        const auto kind = static_cast<QAccessible::TextBoundaryType>(boundary);
        int start = 0, end = 0;
        for (const QString& part : {text.textBeforeOffset(offset, kind, &start, &end),
                                    text.textAfterOffset(offset, kind, &start, &end),
                                    text.textAtOffset(offset, kind, &start, &end)})
          QVERIFY(form.contains(part));
      }
  }
}

void AccessibilitySuite::theWordAtTheEndIsTheLastOne() {
  ProgramUnderTest& program = *program_;
  program.conjugate("se lever");
  QAccessibleTextInterface& text = textOf(program.box(24));
  const auto at = [&](int offset) {
    int start = 0, end = 0;
    const QString word = text.textAtOffset(offset, QAccessible::WordBoundary, &start, &end);
    return QStringLiteral("%1 %2-%3").arg(word).arg(start).arg(end);
  };
  QCOMPARE(program.form(24), "me suis levé(e)");
  QCOMPARE(at(0), "me  0-3");
  QCOMPARE(at(4), "suis  3-8");
  QCOMPARE(at(15), "levé(e) 8-15");
  int start = 0, end = 0;
  QCOMPARE(text.textBeforeOffset(15, QAccessible::WordBoundary, &start, &end), "suis ");
  QCOMPARE(text.textAfterOffset(0, QAccessible::WordBoundary, &start, &end), "suis ");
  QCOMPARE(text.textAtOffset(15, QAccessible::LineBoundary, &start, &end), "me suis levé(e)");
}

void AccessibilitySuite::aLockedBoxIsReadAndNotWritten() {
  ProgramUnderTest& program = *program_;
  program.conjugate("finir");
  QAccessibleInterface& box = *QAccessible::queryAccessibleInterface(&program.box(0));
  QVERIFY(box.state().readOnly && !box.state().editable);
  QCOMPARE(box.role(), QAccessible::EditableText);
  QCOMPARE(box.text(QAccessible::Value), "finis");
  box.setText(QAccessible::Value, "x");
  box.editableTextInterface()->insertText(0, "x");
  QCOMPARE(program.form(0), "finis");
}

void AccessibilitySuite::aBoxThatIsEditedIsWrittenWithinItsLetters() {
  program_.reset();
  EditedProgram program;
  program.edit("finir");
  QAccessibleInterface& box = *QAccessible::queryAccessibleInterface(&program.box(0));
  QVERIFY(box.state().editable && !box.state().readOnly);
  box.editableTextInterface()->replaceText(4, 5, "tł");
  QCOMPARE(program.form(0), "finit");
  box.editableTextInterface()->deleteText(0, 2);
  QCOMPARE(program.form(0), "nit");
  box.textInterface()->setSelection(0, 1, 3);
  QCOMPARE(program.box(0).selectedText(), "it");
}

std::unique_ptr<QObject> accessibilitySuite() { return std::make_unique<AccessibilitySuite>(); }

}  // namespace odmiennik::window_test

#include "accessibility_test.moc"
