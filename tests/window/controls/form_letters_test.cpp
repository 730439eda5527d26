// SPDX-License-Identifier: GPL-3.0-or-later
// The letters of the forms follow the size of their boxes.
#include <QLabel>
#include <algorithm>
#include <map>
#include <set>

#include "tests/window/edited_program.h"
#include "tests/window/scaled_program.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

constexpr char kLongVerb[] = "s'entr'apprendre";

// How many pixels of two pictures differ; all when they differ in size.
int differences(const QImage& one, const QImage& other) {
  if (one.size() != other.size()) return one.width() * one.height();
  int count = 0;
  for (int y = 0; y < one.height(); ++y)
    for (int x = 0; x < one.width(); ++x) count += one.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
  return count;
}

QImage pictureOf(const ScaledProgram& program) { return program.surface().grab().toImage(); }

bool isCondensed(const QWidget& box) {
  return box.font().stretch() != QFont::AnyStretch && box.font().stretch() < 100;
}

}  // namespace

class FormLettersSuite : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void afterAnyResizeTheTableLooksAsConjugatedAtThatSize_data();
  void afterAnyResizeTheTableLooksAsConjugatedAtThatSize();
  void maximisedAndRestoredItLooksAsConjugatedAtThatSize();
  void condensedFormsOfAColumnShareOneWidth();
  void aFormThatFitsKeepsItsNaturalLetters();
  void aCutFormIsAsNarrowAsCanBeRead();
  void aFormThatIsEditedIsNotCondensed();
  void theMarginsFollowTheLetters();
};

void FormLettersSuite::initTestCase() { QApplication::setCursorFlashTime(0); }

void FormLettersSuite::afterAnyResizeTheTableLooksAsConjugatedAtThatSize_data() {
  QTest::addColumn<QSize>("size");
  for (const QSize size : {QSize(599, 411), QSize(638, 430), QSize(790, 540), QSize(1022, 720),
                           QSize(1364, 700), QSize(1918, 1010), QSize(600, 900), QSize(1800, 420)})
    QTest::addRow("%dx%d", size.width(), size.height()) << size;
}

void FormLettersSuite::afterAnyResizeTheTableLooksAsConjugatedAtThatSize() {
  QFETCH(QSize, size);
  QImage resized;
  {
    const ScaledProgram program;
    program.conjugate(kLongVerb);
    program.resizeTo(size);
    resized = pictureOf(program);
    program.conjugate("aimer");
    program.conjugate(kLongVerb);
    QCOMPARE(differences(resized, pictureOf(program)), 0);
  }
  const ScaledProgram fresh;
  fresh.resizeTo(size);
  fresh.conjugate(kLongVerb);
  QCOMPARE(differences(resized, pictureOf(fresh)), 0);
}

void FormLettersSuite::maximisedAndRestoredItLooksAsConjugatedAtThatSize() {
  const ScaledProgram program;
  program.conjugate(kLongVerb);
  for (const Qt::WindowState state : {Qt::WindowMaximized, Qt::WindowNoState}) {
    const QSize before = program.surface().size();
    program.window.setWindowState(state);
    QTRY_VERIFY(program.surface().size() != before);
    const QImage resized = pictureOf(program);
    program.conjugate("aimer");
    program.conjugate(kLongVerb);
    QCOMPARE(differences(resized, pictureOf(program)), 0);
  }
}

void FormLettersSuite::condensedFormsOfAColumnShareOneWidth() {
  const ScaledProgram program;
  program.conjugate(kLongVerb);
  for (const QSize size : {program.designed(), QSize(1022, 720), QSize(650, 800)}) {
    program.resizeTo(size);
    std::map<int, std::set<int>> widths;
    int condensed = 0;
    for (int slot = 0; slot < engine::kSlotCount; ++slot) {
      const app::FormBox& box = program.box(slot);
      if (box.neededWidth() == 100) continue;
      ++condensed;
      widths[box.x()].insert(box.font().stretch());
    }
    QVERIFY(condensed > 10);
    for (const auto& [left, ofColumn] : widths) QCOMPARE(ofColumn.size(), std::size_t{1});
  }
}

void FormLettersSuite::aFormThatFitsKeepsItsNaturalLetters() {
  const ScaledProgram program;
  program.conjugate(kLongVerb);
  int natural = 0;
  for (int slot = 0; slot < engine::kSlotCount; ++slot) {
    const app::FormBox& box = program.box(slot);
    if (box.neededWidth() < 100) continue;
    ++natural;
    QVERIFY2(!isCondensed(box), qPrintable(box.text()));
  }
  QVERIFY(natural > 10);
}

void FormLettersSuite::aCutFormIsAsNarrowAsCanBeRead() {
  const ScaledProgram program;
  program.conjugate(kLongVerb);
  for (const QSize size : {program.designed(), QSize(900, 548), QSize(1022, 720)}) {
    program.resizeTo(size);
    for (int slot = 0; slot < engine::kPersonalSlotCount; ++slot) {
      const app::FormBox& box = program.box(slot);
      const int least = std::max(60, 800 / box.font().pixelSize());
      QVERIFY2(!box.isClipped() || box.font().stretch() <= least, qPrintable(box.text()));
    }
  }
}

void FormLettersSuite::aFormThatIsEditedIsNotCondensed() {
  EditedProgram program;
  program.edit(kLongVerb);
  for (int slot = 0; slot < engine::kSlotCount; ++slot) QVERIFY(!isCondensed(program.box(slot)));
  program.conjugate(kLongVerb);
  QVERIFY(isCondensed(program.box(87)));
}

// Letters twice as high stand twice as far from the edges.
void FormLettersSuite::theMarginsFollowTheLetters() {
  const ScaledProgram program;
  QCOMPARE(program.box(0).textMargins(), QMargins());
  program.resizeTo(program.designed() * 2);
  QCOMPARE(program.box(0).textMargins(), QMargins(2, 0, 2, 0));
  program.resizeTo(program.designed());
  QCOMPARE(program.box(0).textMargins(), QMargins());
}

std::unique_ptr<QObject> formLettersSuite() { return std::make_unique<FormLettersSuite>(); }

}  // namespace odmiennik::window_test

#include "form_letters_test.moc"
