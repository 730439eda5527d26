// SPDX-License-Identifier: GPL-3.0-or-later
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
  void whatWasTypedIsTakenBack();
  void nothingIsTakenBackFromALockedBox();
  void whatTheProgramWroteIsNotTakenBack();
  void theContextMenuSaysAndAllowsWhatTheMenuDoes();
  void theContextMenuWorksOnItsBox();

 private:
  // The letters of the items that are enabled once the menu has been opened.
  [[nodiscard]] QString available() const {
    emit program_->widget<QMenu>("mnuEdycja").aboutToShow();
    QString letters;
    for (const char* name : {"mnuEdycjaCofnij", "mnuEdycjaWytnij", "mnuEdycjaKopiuj",
                             "mnuEdycjaWklej", "mnuEdycjaUsuń", "mnuEdycjaZaznaczWszystko"})
      letters += program_->item(name).isEnabled() ? program_->item(name).text() + " " : QString();
    return letters.remove('&').trimmed();
  }
  void select(const QString& text, int start, int length) const {
    program_->entry().setText(text);
    program_->entry().setSelection(start, length);
  }
  // The context menu of a box, opened as its key does.
  [[nodiscard]] static QMenu& contextMenu(app::FormBox& box) {
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(4, 4),
                            box.mapToGlobal(QPoint(4, 4)));
    QCoreApplication::sendEvent(&box, &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr) qFatal("no context menu has opened");
    return *menu;
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
  program_->entry().setText({});
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
  program_->entry().setFocus();
  QVERIFY(program_->item("mnuEdycjaWklej").isEnabled());
  auto* files = new QMimeData;
  files->setUrls({QUrl("file:///etc/hostname")});
  QGuiApplication::clipboard()->setMimeData(files);
  program_->entry().setFocus();
  QVERIFY(!program_->item("mnuEdycjaWklej").isEnabled());
}

void EditMenuSuite::anEmptyClipboardCannotBePasted() {
  QGuiApplication::clipboard()->clear();
  program_->entry().setText({});
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

void EditMenuSuite::whatWasTypedIsTakenBack() {
  program_->conjugate("parler");
  program_->item("mnuEdycjaEdytujCzasownik").trigger();
  QTRY_VERIFY(!program_->box(0).isReadOnly());
  program_->box(0).setFocus();
  program_->box(0).end(false);
  QCOMPARE(available(), "Wklej Zaznacz wszystko");
  QTest::keyClicks(&program_->box(0), "x");
  QCOMPARE(available(), "Cofnij Wklej Zaznacz wszystko");
  program_->item("mnuEdycjaCofnij").trigger();
  QCOMPARE(program_->form(0), "parle");
  QVERIFY(!program_->item("mnuEdycjaCofnij").isEnabled());
  QTest::keyClicks(&program_->box(0), "y");
  QTest::keyClick(&program_->box(0), Qt::Key_Z, Qt::ControlModifier);
  QCOMPARE(program_->form(0), "parle");
}

void EditMenuSuite::nothingIsTakenBackFromALockedBox() {
  lockedBox(0);
  QVERIFY(!available().contains("Cofnij"));
  QTest::keyClick(&program_->box(0), Qt::Key_Z, Qt::ControlModifier);
  QCOMPARE(program_->form(0), "parle");
  QVERIFY(program_->messages.shown.empty());
}

// The forms of another verb are no step of the user's.
void EditMenuSuite::whatTheProgramWroteIsNotTakenBack() {
  program_->conjugate("parler");
  program_->item("mnuEdycjaEdytujCzasownik").trigger();
  QTRY_VERIFY(!program_->box(0).isReadOnly());
  program_->box(0).setFocus();
  QTest::keyClicks(&program_->box(0), "x");
  program_->messages.answer = dictionary::Button::no;
  QVERIFY(program_->program.editing().conjugate("finir"));
  program_->item("mnuEdycjaEdytujCzasownik").trigger();
  QTRY_VERIFY(!program_->box(0).isReadOnly());
  program_->box(0).setFocus();
  QTest::keyClick(&program_->box(0), Qt::Key_Z, Qt::ControlModifier);
  QCOMPARE(program_->form(0), "finis");
}

void EditMenuSuite::theContextMenuSaysAndAllowsWhatTheMenuDoes() {
  lockedBox(0);
  QMenu& context = contextMenu(program_->box(0));
  QStringList captions, allowed;
  for (const QAction* action : context.actions()) {
    if (action->isSeparator()) continue;
    captions += action->text().remove('&');
    const QString name = action->objectName();
    const bool isOfTheBox = name.startsWith("mnuEdycja") && name != "mnuEdycjaKopiujOdmianę";
    if (action->isEnabled() && isOfTheBox) allowed += captions.back();
  }
  context.close();
  QCOMPARE(captions, (QStringList{"Cofnij", "Wytnij", "Kopiuj", "Wklej", "Usuń", "Zaznacz wszystko",
                                  "Kopiuj całą odmianę", "Skąd ta forma?"}));
  QCOMPARE(allowed.join(' '), available());
}

void EditMenuSuite::theContextMenuWorksOnItsBox() {
  select("parler", 1, 3);
  QMenu& context = contextMenu(program_->entry());
  QTest::keyClick(&context, Qt::Key_K);
  QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
  QCOMPARE(QGuiApplication::clipboard()->text(), "arl");
  QCOMPARE(program_->entry().selectedText(), "arl");
}

std::unique_ptr<QObject> editMenuSuite() { return std::make_unique<EditMenuSuite>(); }

}  // namespace odmiennik::window_test

#include "edit_menu_test.moc"
