// SPDX-License-Identifier: GPL-3.0-or-later
// The whole program but for its main function, with message boxes answered in the user's stead.
#pragma once

#include <QAction>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <functional>
#include <map>
#include <vector>

#include "app/controls/form_box.h"
#include "app/controls/main_menu.h"
#include "app/program.h"
#include "engine/utf8.h"
#include "tests/support/scratch_folder.h"
#include "tests/window/watched_application.h"

namespace odmiennik::window_test {

// Remembers the messages asked for and answers them; `whileShown` runs before the answer, as the
// user's doings do while a box is open.
class AnsweredMessages final : public dictionary::MessageBoxes {
 public:
  AnsweredMessages();
  AnsweredMessages(const AnsweredMessages&) = delete;
  AnsweredMessages& operator=(const AnsweredMessages&) = delete;
  ~AnsweredMessages() override;

  dictionary::Button show(dictionary::MessageId id, Utf8View argument) override;

  std::vector<dictionary::MessageId> shown;
  dictionary::Button answer = dictionary::Button::ok;           // to every message
  std::map<dictionary::MessageId, dictionary::Button> answers;  // to those that are named
  std::function<void()> whileShown;
};

// A program that has started in an empty folder of its own, with the tip of the day switched off.
struct ProgramUnderTest {
  scratch::ScratchFolder folder;
  AnsweredMessages messages;
  app::UserStore store{QString::fromStdString((folder.path() / "store.ini").string())};
  int ends = 0;  // how often the program has been ended at once
  app::Program program{{.folder = Utf8Text(asUtf8(folder.path().string())),
                        .messages = messages,
                        .store = store,
                        .end = [this] { ++ends; }}};
  app::MainWindow& window = program.window();

  ProgramUnderTest();
  ProgramUnderTest(const ProgramUnderTest&) = delete;
  ProgramUnderTest& operator=(const ProgramUnderTest&) = delete;
  ~ProgramUnderTest();

  // A widget by its object name; asking for one that does not exist ends the test.
  template <typename Widget>
  [[nodiscard]] Widget& widget(const QString& name) const {
    auto* found = window.findChild<Widget*>(name);
    if (found == nullptr) qFatal("no control %s", qPrintable(name));
    return *found;
  }

  [[nodiscard]] app::FormBox& box(int slot) const;
  [[nodiscard]] app::FormBox& entry() const { return box(engine::slot::kInfinitive); }
  [[nodiscard]] QString form(int slot) const;
  [[nodiscard]] QString label(const char* name) const;
  [[nodiscard]] QCheckBox& auxiliary() const;

  // The item, which must be there and enabled to be chosen.
  [[nodiscard]] QAction& item(const char* name) const;

  // Types as a keyboard does, letters beyond ASCII included, over what is selected.
  void type(const QString& text) const;

  // Types an infinitive in the place of the entry box's text and presses Enter.
  void conjugate(const QString& infinitive) const;
};

}  // namespace odmiennik::window_test
