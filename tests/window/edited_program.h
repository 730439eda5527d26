// A program under test whose verbs are edited and saved.
#pragma once

#include <QFile>

#include "tests/window/program_under_test.h"

namespace odmiennik::window_test {

struct EditedProgram : ProgramUnderTest {
  // Chooses a menu item, which must be enabled, and lets its command run.
  void trigger(const char* name) const {
    if (!item(name).isEnabled()) qFatal("%s is disabled", name);
    item(name).trigger();
    QCoreApplication::processEvents();
  }

  // Conjugates a verb and enters edit mode; messages up to there are forgotten.
  void edit(const QString& infinitive) {
    conjugate(infinitive);
    trigger("mnuEdycjaEdytujCzasownik");
    if (!isEditing()) qFatal("edit mode was not entered");
    messages.shown.clear();
  }

  // What the marker says.
  [[nodiscard]] bool isEditing() const {
    return item("mnuEdycjaEdytujCzasownik").property("Tag").toString() == "edit";
  }

  // The file of the user's verbs; null when there is none.
  [[nodiscard]] QByteArray userVerbs() const {
    QFile file(QString::fromStdString((folder.path() / "Czasowniki.dat").string()));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  // The fields of its first record: 101 forms and the flag.
  [[nodiscard]] QList<QByteArray> fields() const {
    return userVerbs().split('\n').value(0).split(',');
  }

  [[nodiscard]] int count() { return program.userVerbs().count(); }
};

}  // namespace odmiennik::window_test
