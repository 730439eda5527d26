// SPDX-License-Identifier: GPL-3.0-or-later
// A verb list over a folder of its own, with a main window that notes what it is asked for.
#pragma once

#include "app/list/list_window.h"
#include "tests/unit/dictionary/program_files.h"
#include "tests/window/program_under_test.h"

namespace odmiennik::window_test {

inline constexpr int kLetterA = 1;
inline constexpr int kLetterD = 4;  // the longest
inline constexpr int kLetterE = 5;
inline constexpr int kLetterX = 24;  // no verb begins with it

struct NotingCommands final : app::MainCommands {
  [[nodiscard]] bool isEditing() const override { return isBeingEdited; }
  [[nodiscard]] bool edit() override { return note("edit"); }
  [[nodiscard]] bool newVerb() override { return note("new"); }
  [[nodiscard]] bool conjugate(std::string_view infinitive) override {
    return note("conjugate " + QString::fromLatin1(QByteArrayView(infinitive)));
  }
  [[nodiscard]] bool print() override { return note("print"); }
  bool note(const QString& command) {
    diary += command;
    return command != refusing;
  }
  bool isBeingEdited = false;
  QString refusing;
  QStringList diary;
};

// A list over a folder with verbs of the user's own.
struct ListUnderTest {
  ListUnderTest(const std::vector<std::string_view>& saved, std::int32_t count)
      : folder(saved), verbs(folder.prefix(), count, messages) {
    main.show();
    verbs.tellOfChanges([this] { window.followUserVerbs(); });
    window.showFor(app::ListPurpose::list);
    if (!QTest::qWaitForWindowActive(&window)) qFatal("the list does not become active");
  }

  struct Folder : testing::ProgramFolder {
    explicit Folder(const std::vector<std::string_view>& saved) {
      if (!saved.empty()) write("Czasowniki.dat", testing::linesOf(saved));
    }
  };

  template <typename Widget>
  [[nodiscard]] Widget& widget(const char* name) const {
    auto* found = window.findChild<Widget*>(QString::fromUtf8(name));
    if (found == nullptr) qFatal("no control %s", name);
    return *found;
  }
  [[nodiscard]] QPushButton& button(const char* name) const { return widget<QPushButton>(name); }
  [[nodiscard]] QListWidget& list() const { return widget<QListWidget>("lstCzasowniki"); }
  [[nodiscard]] QLabel& hint() const { return widget<QLabel>("lblPustaLista"); }
  [[nodiscard]] QString count() const { return widget<QLabel>("lblIlośćCzasowników").text(); }
  [[nodiscard]] QString selected() const {
    return list().currentItem() == nullptr ? QString() : list().currentItem()->text();
  }
  [[nodiscard]] QStringList entries() const {
    QStringList texts;
    for (int row = 0; row < list().count(); ++row) texts += list().item(row)->text();
    return texts;
  }
  // The names of the buttons that can be pressed.
  [[nodiscard]] QStringList enabled() const {
    QStringList names;
    for (const char* name : {"cmdOdmień", "cmdEdytuj", "cmdNowy", "cmdUsuń", "cmdDrukuj"})
      if (button(name).isEnabled()) names += QString::fromUtf8(name);
    return names;
  }
  // Saves a verb as the main window does.
  void save(std::string_view infinitive) {
    dictionary::UserVerbRecord record;
    record.forms[engine::slot::kInfinitive] = infinitive;
    verbs.save(record);
  }
  void choose(int choice) const { widget<QComboBox>("cmbLista").setCurrentIndex(choice); }
  void press(const char* name) const {
    QTest::mouseClick(&button(name), Qt::LeftButton);
    QCoreApplication::processEvents();
  }

  AnsweredMessages messages;
  Folder folder;
  dictionary::UserVerbsFile verbs;
  NotingCommands commands;
  std::vector<app::SavedList> savedLists;  // lists that were asked for to be saved
  QWidget main;
  app::ListWindow& window = *new app::ListWindow(
      folder.prefix(), verbs, commands,
      [this](QWidget&, const app::SavedList& list) { savedLists.push_back(list); }, &main);
};

}  // namespace odmiennik::window_test
