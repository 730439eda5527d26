// SPDX-License-Identifier: GPL-3.0-or-later
// The program with its help viewer, on the help file that is built.
#pragma once

#include <QFile>
#include <QTextBrowser>
#include <QTreeWidget>

#include "app/help/help_viewer.h"
#include "tests/window/program_under_test.h"

namespace odmiennik::window_test {

// For initTestCase(): without the help file none of the suite's tests can run.
inline void skipWithoutHelpFile() {
  if (!QFile::exists(app::helpFilePlaces().front()))
    QSKIP("the help file is not built here: chmcmd (package fp-utils) is missing");
}

struct HelpUnderTest : ProgramUnderTest {
  [[nodiscard]] QTextBrowser& pages() const { return widget<QTextBrowser>("txtStrona"); }
  [[nodiscard]] QTreeWidget& contents() const { return widget<QTreeWidget>("treSpis"); }
  [[nodiscard]] app::HelpViewer& viewer() const { return widget<app::HelpViewer>("Hhopen1"); }

  void press(const char* button) const { widget<QPushButton>(QString::fromUtf8(button)).click(); }

  // Clicks on the first place of the page that reads `link`.
  void follow(const QString& link) const {
    QTextCursor place = pages().document()->find(link);
    place.setPosition(place.selectionStart() + 1);
    pages().setTextCursor(place);
    QTest::mouseClick(pages().viewport(), Qt::LeftButton, {}, pages().cursorRect().center());
  }
};

}  // namespace odmiennik::window_test
