// SPDX-License-Identifier: GPL-3.0-or-later
// Boxes show whether they can be typed into.
#include "app/common/colours.h"
#include "tests/window/edited_program.h"
#include "tests/window/suites.h"
#include "tests/window/themes.h"

namespace odmiennik::window_test {
namespace {

constexpr double kReadable = 4.5;

// A box as it is painted: edge, ground and the strongest letter.
struct SeenBox {
  explicit SeenBox(app::FormBox& box) : picture(box.grab().toImage()) {
    edge = picture.pixelColor(0, picture.height() / 2);
    ground = picture.pixelColor(picture.width() - 6, picture.height() / 2);
    for (int y = 3; y < picture.height() - 3; ++y)
      for (int x = 3; x < picture.width() / 2; ++x)
        letters = std::max(letters, contrast(picture.pixelColor(x, y), ground));
  }
  QImage picture;
  QColor edge, ground;
  double letters = 1;
};

struct ThemedProgram {
  explicit ThemedProgram(const QPalette& palette) : theme(palette) {
    program.conjugate("finir");
    program.widget<QPushButton>("cmdOdmień").setFocus();  // no box is lit
  }
  [[nodiscard]] QColor window() const { return program.window.palette().color(QPalette::Window); }
  Theme theme;
  EditedProgram program;
};

}  // namespace

class LockedBoxesSuite : public QObject {
  Q_OBJECT

 private slots:
  void theEntryBoxHasAClearEdgeAndLockedBoxesHaveNot_data() { addThemes(); }
  void theEntryBoxHasAClearEdgeAndLockedBoxesHaveNot();
  void theBoxWithTheFocusIsLit_data() { addThemes(); }
  void theBoxWithTheFocusIsLit();
  void everyBoxLooksLikeTheEntryBoxWhileAVerbIsEdited_data() { addThemes(); }
  void everyBoxLooksLikeTheEntryBoxWhileAVerbIsEdited();
  void lettersAreReadableInBoth_data() { addThemes(); }
  void lettersAreReadableInBoth();
  void lockedBoxesHaveAGroundOfTheirOwn();
  void leftEditModeLooksAsBefore();
};

void LockedBoxesSuite::theEntryBoxHasAClearEdgeAndLockedBoxesHaveNot() {
  QFETCH(QPalette, palette);
  const ThemedProgram themed(palette);
  const SeenBox entry(themed.program.entry()), locked(themed.program.box(0));
  QVERIFY(contrast(entry.edge, themed.window()) >= 3);
  QVERIFY(contrast(entry.edge, themed.window()) > 1.3 * contrast(locked.edge, themed.window()));
}

void LockedBoxesSuite::theBoxWithTheFocusIsLit() {
  QFETCH(QPalette, palette);
  const ThemedProgram themed(palette);
  for (app::FormBox* box : {&themed.program.entry(), &themed.program.box(0)}) {
    const SeenBox before(*box);
    box->setFocus();
    const SeenBox lit(*box);
    QVERIFY(contrast(lit.edge, themed.window()) >= 3);
    QVERIFY(lit.edge != before.edge);
  }
}

void LockedBoxesSuite::everyBoxLooksLikeTheEntryBoxWhileAVerbIsEdited() {
  QFETCH(QPalette, palette);
  ThemedProgram themed(palette);
  const SeenBox entry(themed.program.entry());
  themed.program.edit("finir");
  themed.program.widget<QPushButton>("cmdOdmień").setFocus();
  for (int slot = 0; slot < engine::kSlotCount; ++slot) {
    const SeenBox box(themed.program.box(slot));
    QCOMPARE(box.edge, entry.edge);
    QCOMPARE(box.ground, entry.ground);
  }
}

void LockedBoxesSuite::lettersAreReadableInBoth() {
  QFETCH(QPalette, palette);
  ThemedProgram themed(palette);
  QVERIFY(SeenBox(themed.program.box(0)).letters >= kReadable);
  themed.program.edit("finir");
  QVERIFY(SeenBox(themed.program.box(0)).letters >= kReadable);
}

void LockedBoxesSuite::lockedBoxesHaveAGroundOfTheirOwn() {
  for (const QPalette& palette : {lightPalette(), darkPalette()}) {
    const ThemedProgram themed(palette);
    const SeenBox entry(themed.program.entry()), locked(themed.program.box(0));
    QCOMPARE(entry.ground, palette.color(QPalette::Base));
    QVERIFY(locked.ground != entry.ground);
    QVERIFY(locked.ground != themed.window());
  }
}

void LockedBoxesSuite::leftEditModeLooksAsBefore() {
  ThemedProgram themed(lightPalette());
  const QImage before = themed.program.box(0).grab().toImage();
  themed.program.messages.answer = dictionary::Button::no;
  themed.program.edit("finir");
  QVERIFY(themed.program.box(0).grab().toImage() != before);
  themed.program.conjugate("finir");
  QVERIFY(!themed.program.isEditing());
  QCOMPARE(themed.program.box(0).grab().toImage(), before);
}

std::unique_ptr<QObject> lockedBoxesSuite() { return std::make_unique<LockedBoxesSuite>(); }

}  // namespace odmiennik::window_test

#include "locked_boxes_test.moc"
