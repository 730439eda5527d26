// The edit commands: when they are available, and what they do.
#include <QClipboard>
#include <QImage>
#include <QMenu>
#include <QMimeData>

#include "tests/window/program_under_test.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {

class EditMenuSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    program_ = std::make_unique<ProgramUnderTest>();
    QGuiApplication::clipboard()->setText("text");
  }
  void cleanup() { program_.reset(); }

  void onAButtonNothingIsAvailable();
  void aLockedBoxCanBeCopiedAndSelected();
  void theEntryBoxAllowsEverything();
  void withoutASelectionOnlyPastingAndSelecting();
  void allSelectedCannotBeSelectedOnceMore();
  void anEmptyBoxCanOnlyBePastedInto();
  void anImageCannotBePasted();
  void filesCannotBePasted();
  void anEmptyClipboardCannotBePasted();
  void anEditedFormAllowsEverything();
  void theCommandsWorkOnTheFocusedBox();
  void aCommandFollowsWhatHoldsWhenItsKeyIsPressed();
  void aLockedBoxIsCopiedWithItsKeys();
  void theMenuOpenedWithTheKeyboardKeepsTheSelection();
  void theCharacterMapIsNeverTouched();

 private:
  // The letters of the items that are enabled once the menu has been opened.
  [[nodiscard]] QString available() const {
    emit program_->widget<QMenu>("mnuEdycja").aboutToShow();
    QString letters;
    for (const char* name : {"mnuEdycjaWytnij", "mnuEdycjaKopiuj", "mnuEdycjaWklej",
                             "mnuEdycjaUsuń", "mnuEdycjaZaznaczWszystko"})
      letters += program_->item(name).isEnabled() ? program_->item(name).text() + " " : QString();
    return letters.remove('&').trimmed();
  }
  void select(const QString& text, int start, int length) const {
    program_->entry().setText(text);
    program_->entry().setSelection(start, length);
  }
  void lockedBox(int slot) const {
    program_->conjugate("parler");
    program_->box(slot).setFocus();
    program_->box(slot).setSelection(0, 2);
  }

  std::unique_ptr<ProgramUnderTest> program_;
};

void EditMenuSuite::onAButtonNothingIsAvailable() {
  program_->widget<QPushButton>("cmdOdmień").setFocus();
  QCOMPARE(available(), "");
}

void EditMenuSuite::aLockedBoxCanBeCopiedAndSelected() {
  lockedBox(0);
  QCOMPARE(available(), "Kopiuj Zaznacz wszystko");
}

void EditMenuSuite::theEntryBoxAllowsEverything() {
  select("parler", 1, 2);
  QCOMPARE(available(), "Wytnij Kopiuj Wklej Usuń Zaznacz wszystko");
}

void EditMenuSuite::withoutASelectionOnlyPastingAndSelecting() {
  select("parler", 1, 0);
  QCOMPARE(available(), "Wklej Zaznacz wszystko");
}

void EditMenuSuite::allSelectedCannotBeSelectedOnceMore() {
  select("parler", 0, 6);
  QCOMPARE(available(), "Wytnij Kopiuj Wklej Usuń");
}

void EditMenuSuite::anEmptyBoxCanOnlyBePastedInto() {
  program_->entry().clear();
  QCOMPARE(available(), "Wklej");
}

void EditMenuSuite::anImageCannotBePasted() {
  QImage image(2, 2, QImage::Format_RGB32);
  image.fill(Qt::red);
  QGuiApplication::clipboard()->setImage(image);
  select("parler", 1, 2);
  QCOMPARE(available(), "Wytnij Kopiuj Usuń Zaznacz wszystko");
  lockedBox(0);
  QCOMPARE(available(), "Kopiuj Zaznacz wszystko");
}

void EditMenuSuite::filesCannotBePasted() {
  auto* files = new QMimeData;
  files->setUrls({QUrl("file:///etc/hostname")});
  QGuiApplication::clipboard()->setMimeData(files);
  program_->entry().setFocus();
  QVERIFY(!program_->item("mnuEdycjaWklej").isEnabled());
}

void EditMenuSuite::anEmptyClipboardCannotBePasted() {
  QGuiApplication::clipboard()->clear();
  program_->entry().clear();
  QCOMPARE(available(), "");
}

void EditMenuSuite::anEditedFormAllowsEverything() {
  lockedBox(0);
  program_->item("mnuEdycjaEdytujCzasownik").trigger();
  QTRY_VERIFY(!program_->box(0).isReadOnly());
  program_->box(0).setFocus();
  program_->box(0).setSelection(0, 2);
  QCOMPARE(available(), "Wytnij Kopiuj Wklej Usuń Zaznacz wszystko");
}

void EditMenuSuite::theCommandsWorkOnTheFocusedBox() {
  select("parler", 1, 3);
  program_->item("mnuEdycjaWytnij").trigger();
  QCOMPARE(program_->entry().text(), "per");
  QCOMPARE(QGuiApplication::clipboard()->text(), "arl");
  program_->item("mnuEdycjaWklej").trigger();
  QCOMPARE(program_->entry().text(), "parler");
  program_->item("mnuEdycjaZaznaczWszystko").trigger();
  QCOMPARE(program_->entry().selectedText(), "parler");
  program_->item("mnuEdycjaKopiuj").trigger();
  QCOMPARE(QGuiApplication::clipboard()->text(), "parler");
  program_->item("mnuEdycjaUsuń").trigger();
  QCOMPARE(program_->entry().text(), "");
  QCOMPARE(QGuiApplication::clipboard()->text(), "parler");
}

// The menu was last opened when nothing could be done.
void EditMenuSuite::aCommandFollowsWhatHoldsWhenItsKeyIsPressed() {
  program_->widget<QPushButton>("cmdOdmień").setFocus();
  QCOMPARE(available(), "");
  program_->entry().setFocus();
  select("parler", 1, 3);
  QTest::keyClick(&program_->window, Qt::Key_X, Qt::ControlModifier);
  QCOMPARE(program_->entry().text(), "per");
  QTest::keyClick(&program_->window, Qt::Key_V, Qt::ControlModifier);
  QCOMPARE(program_->entry().text(), "parler");
  QTest::keyClick(&program_->window, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&program_->window, Qt::Key_Delete);
  QCOMPARE(program_->entry().text(), "");
}

void EditMenuSuite::aLockedBoxIsCopiedWithItsKeys() {
  lockedBox(0);
  QTest::keyClick(&program_->box(0), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&program_->box(0), Qt::Key_C, Qt::ControlModifier);
  QCOMPARE(QGuiApplication::clipboard()->text(), "parle");
  QTest::keyClick(&program_->box(0), Qt::Key_X, Qt::ControlModifier);
  QTest::keyClick(&program_->box(0), Qt::Key_V, Qt::ControlModifier);
  QCOMPARE(program_->form(0), "parle");
  QVERIFY(program_->messages.shown.empty());
}

void EditMenuSuite::theMenuOpenedWithTheKeyboardKeepsTheSelection() {
  select("parler", 1, 3);
  program_->window.menuBar()->setFocus(Qt::MenuBarFocusReason);
  QCOMPARE(available(), "Wytnij Kopiuj Wklej Usuń Zaznacz wszystko");
  program_->item("mnuEdycjaKopiuj").trigger();
  QCOMPARE(QGuiApplication::clipboard()->text(), "arl");
  program_->entry().setFocus(Qt::MenuBarFocusReason);
  QCOMPARE(program_->entry().selectedText(), "arl");
}

void EditMenuSuite::theCharacterMapIsNeverTouched() {
  const bool isEnabled = program_->item("mnuEdycjaTablica").isEnabled();
  program_->widget<QPushButton>("cmdOdmień").setFocus();
  QCOMPARE(available(), "");
  QCOMPARE(program_->item("mnuEdycjaTablica").isEnabled(), isEnabled);
}

std::unique_ptr<QObject> editMenuSuite() { return std::make_unique<EditMenuSuite>(); }

}  // namespace odmiennik::window_test

#include "edit_menu_test.moc"
