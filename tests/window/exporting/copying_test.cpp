// SPDX-License-Identifier: GPL-3.0-or-later
// The whole conjugation on the clipboard.
#include <QClipboard>
#include <QMenu>
#include <QMimeData>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>

#include "app/common/announcement.h"
#include "tests/window/edited_program.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

constexpr char kCopyConjugation[] = "mnuEdycjaKopiujOdmianę";

// Nothing, before something has been copied.
const QMimeData& copied() {
  static const QMimeData kNothing;
  const QMimeData* content = QGuiApplication::clipboard()->mimeData();
  return content == nullptr ? kNothing : *content;
}

QList<QTextTable*> tablesOf(const QTextDocument& document) {
  QList<QTextTable*> tables;
  for (QTextFrame* frame : document.rootFrame()->childFrames())
    if (auto* table = qobject_cast<QTextTable*>(frame)) tables += table;
  return tables;
}

QString textOf(const QTextTable& table, int row, int column) {
  return table.cellAt(row, column).firstCursorPosition().block().text();
}

}  // namespace

class CopyingSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    QGuiApplication::clipboard()->clear();
    program_ = std::make_unique<EditedProgram>();
    program_->conjugate("parler");
  }
  void cleanup() { program_.reset(); }

  void whatIsReadAsAPageHasATableForEachRowOfTenses();
  void whatIsReadAsTextIsTheTableOfTheCommand();
  void aSelectionInABoxIsCopiedByItsOwnKeyStill();
  void theKeyCopiesFromAnyBox();
  void theBoxesOwnMenuHasItToo();
  void whatIsTypedIsCopiedWhileAVerbIsEdited();
  void lettersOfMarkUpAreText();
  void whoDoesNotSeeIsTold();

 private:
  std::unique_ptr<EditedProgram> program_;
};

void CopyingSuite::whatIsReadAsAPageHasATableForEachRowOfTenses() {
  program_->trigger(kCopyConjugation);
  QVERIFY(copied().hasHtml());
  QTextDocument document;
  document.setHtml(copied().html());
  const QList<QTextTable*> tables = tablesOf(document);
  QCOMPARE(tables.size(), 9);
  QCOMPARE(tables[0]->columns(), 3);
  QCOMPARE(tables[0]->rows(), 7);
  QCOMPARE(textOf(*tables[0], 0, 1), "imparfait");
  QCOMPARE(textOf(*tables[0], 4, 0), "nous parlons");
  QCOMPARE(textOf(*tables[3], 6, 1), "qu'ils parlassent");
  QVERIFY(document.toPlainText().startsWith("parler"));
}

void CopyingSuite::whatIsReadAsTextIsTheTableOfTheCommand() {
  program_->trigger(kCopyConjugation);
  const QStringList lines = copied().text().split('\n');
  QVERIFY(lines.first().contains(" parler "));
  QVERIFY(lines.contains("tu parles" + QString(18, ' ') + "tu parlais" + QString(17, ' ') +
                         "tu parlas"));
  QVERIFY(!copied().text().contains('\x1b'));
}

void CopyingSuite::aSelectionInABoxIsCopiedByItsOwnKeyStill() {
  program_->box(3).setFocus();
  program_->box(3).selectAll();
  QTest::keyClick(&program_->box(3), Qt::Key_C, Qt::ControlModifier);
  QCOMPARE(copied().text(), "parlons");
}

void CopyingSuite::theKeyCopiesFromAnyBox() {
  program_->box(3).setFocus();
  program_->box(3).selectAll();
  QTest::keyClick(&program_->box(3), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  QTRY_VERIFY(copied().hasHtml());
  QVERIFY(program_->messages.shown.empty());
}

void CopyingSuite::theBoxesOwnMenuHasItToo() {
  QContextMenuEvent wish(QContextMenuEvent::Mouse, {2, 2},
                         program_->box(3).mapToGlobal(QPoint(2, 2)));
  QApplication::sendEvent(&program_->box(3), &wish);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  QVERIFY(menu != nullptr);
  QVERIFY(menu->actions().contains(&program_->item(kCopyConjugation)));
  menu->close();
}

void CopyingSuite::whatIsTypedIsCopiedWhileAVerbIsEdited() {
  program_->trigger("mnuEdycjaEdytujCzasownik");
  program_->box(3).setText("parlix");
  program_->trigger(kCopyConjugation);
  QVERIFY(copied().html().contains("<td>nous parlix</td>"));
  QVERIFY(copied().text().contains("ns parlix"));
}

void CopyingSuite::lettersOfMarkUpAreText() {
  program_->trigger("mnuEdycjaEdytujCzasownik");
  program_->box(3).setText("<b>&");
  program_->trigger(kCopyConjugation);
  QTextDocument document;
  document.setHtml(copied().html());
  QCOMPARE(textOf(*tablesOf(document)[0], 4, 0), "nous <b>&");
}

void CopyingSuite::whoDoesNotSeeIsTold() {
  QStringList said;
  app::announceTo([&](const QString& sentence) { said += sentence; });
  const auto end = qScopeGuard([] { app::announceTo({}); });
  program_->trigger(kCopyConjugation);
  QTRY_VERIFY(said.join(' ').contains("Skopiowano odmianę czasownika parler."));
}

std::unique_ptr<QObject> copyingSuite() { return std::make_unique<CopyingSuite>(); }

}  // namespace odmiennik::window_test

#include "copying_test.moc"
