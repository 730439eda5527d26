// SPDX-License-Identifier: GPL-3.0-or-later
// The program under test. What every suite starts and types with is compiled here, once.
#include "tests/window/program_under_test.h"

#include <QCheckBox>
#include <QLabel>

#include "tests/window/edited_program.h"

namespace odmiennik::window_test {

AnsweredMessages::AnsweredMessages() = default;
AnsweredMessages::~AnsweredMessages() = default;

dictionary::Button AnsweredMessages::show(dictionary::MessageId id, Utf8View /*argument*/) {
  WatchedApplication::mayOpenModal();
  shown.push_back(id);
  if (whileShown) whileShown();
  const auto found = answers.find(id);
  return found == answers.end() ? answer : found->second;
}

ProgramUnderTest::ProgramUnderTest() {
  store.setTipShownAtStart(false);
  program.start();
  if (!QTest::qWaitForWindowActive(&window)) qFatal("the window does not become active");
}

ProgramUnderTest::~ProgramUnderTest() = default;

app::FormBox& ProgramUnderTest::box(int slot) const {
  return widget<app::FormBox>(QStringLiteral("txtCzasownik_%1").arg(slot));
}

QString ProgramUnderTest::form(int slot) const { return box(slot).text(); }

QString ProgramUnderTest::label(const char* name) const {
  return widget<QLabel>(QString::fromUtf8(name)).text();
}

QCheckBox& ProgramUnderTest::auxiliary() const { return widget<QCheckBox>("chkZAvoir"); }

QAction& ProgramUnderTest::item(const char* name) const {
  auto* found = window.menuBar()->findChild<QAction*>(QString::fromUtf8(name));
  if (found == nullptr) qFatal("no item %s", name);
  return *found;
}

void ProgramUnderTest::type(const QString& text) const {
  for (const QChar letter : text)
    QTest::sendKeyEvent(QTest::Click, &entry(), Qt::Key_unknown, QString(letter), Qt::NoModifier);
}

void ProgramUnderTest::conjugate(const QString& infinitive) const {
  entry().selectAll();
  type(infinitive);
  QTest::keyClick(&entry(), Qt::Key_Return);
  QCoreApplication::processEvents();
}

void EditedProgram::trigger(const char* name) const {
  if (!item(name).isEnabled()) qFatal("%s is disabled", name);
  item(name).trigger();
  QCoreApplication::processEvents();
}

void EditedProgram::edit(const QString& infinitive) {
  conjugate(infinitive);
  trigger("mnuEdycjaEdytujCzasownik");
  if (!isEditing()) qFatal("edit mode was not entered");
  messages.shown.clear();
}

bool EditedProgram::isEditing() const {
  return item("mnuEdycjaEdytujCzasownik").property("Tag").toString() == "edit";
}

QByteArray EditedProgram::userVerbs() const {
  QFile file(QString::fromStdString((folder.path() / "Czasowniki.dat").string()));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QList<QByteArray> EditedProgram::fields() const {
  return userVerbs().split('\n').value(0).split(',');
}

}  // namespace odmiennik::window_test
