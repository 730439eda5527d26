// SPDX-License-Identifier: GPL-3.0-or-later
// A program under test whose verbs are edited and saved.
#pragma once

#include <QFile>

#include "tests/window/program_under_test.h"

namespace odmiennik::window_test {

struct EditedProgram : ProgramUnderTest {
  // Chooses a menu item, which must be enabled, and lets its command run.
  void trigger(const char* name) const;

  // Conjugates a verb and enters edit mode; messages up to there are forgotten.
  void edit(const QString& infinitive);

  // What the marker says.
  [[nodiscard]] bool isEditing() const;

  // The file of the user's verbs; null when there is none.
  [[nodiscard]] QByteArray userVerbs() const;

  // The fields of its first record: 101 forms and the flag.
  [[nodiscard]] QList<QByteArray> fields() const;

  [[nodiscard]] int count() { return program.userVerbs().count(); }
};

}  // namespace odmiennik::window_test
