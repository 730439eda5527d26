// SPDX-License-Identifier: GPL-3.0-or-later
// A window without widgets for edit mode: it conjugates by upper-casing and keeps a diary.
#pragma once

#include <array>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "app/logic/edit_mode.h"
#include "app/logic/saving.h"
#include "data/messages.h"
#include "engine/slots.h"
#include "engine/utf8.h"
#include "tests/support/test_program.h"

namespace odmiennik::testing {

// Answers message boxes in the user's stead, in the order given; a question without an answer left
// is answered No.
struct MessagesFake final : dictionary::MessageBoxes {
  dictionary::Button show(dictionary::MessageId id, Utf8View argument) override {
    shown.push_back(dictionary::messageText(id, argument));
    whileShown();
    if (answers.empty()) return dictionary::Button::no;
    const dictionary::Button answer = answers.front();
    answers.pop_front();
    return answer;
  }
  std::deque<dictionary::Button> answers;
  std::function<void()> whileShown = [] {};  // what is done before the answer
  std::vector<Utf8Text> shown;
};

// Like the main window: a change of a text, whoever makes it, is told to edit mode.
class EditWindowFake final : public app::EditWindow {
 public:
  using Texts = std::array<std::string, engine::kSlotCount>;

  explicit EditWindowFake(std::string_view infinitive) {
    texts[engine::slot::kInfinitive] = infinitive;
  }

  // Gives a command as the user does, from the menu, a button or the list.
  bool give(bool (app::EditMode::*command)()) { return (mode.*command)(); }
  void type(int slot, std::string_view text) { setText(slot, text); }

  [[nodiscard]] std::string entryText() const override { return texts[engine::slot::kInfinitive]; }
  void setEntryText(std::string_view text) override { setText(engine::slot::kInfinitive, text); }
  void clearBoxes() override {
    for (int slot = 0; slot < engine::kSlotCount; ++slot) setText(slot, "");
  }
  void present(const app::EditPresentation& presentation) override { seen = presentation; }
  void showHourglass(bool isShown) override {
    diary.emplace_back(isShown ? "hourglass" : "pointer");
  }
  std::string conjugate() override { return fill("conjugate "); }
  std::string conjugateForEditing() override { return fill("edit "); }
  dictionary::UserVerbRecord record() const override {
    return app::recordOfBoxes(texts, engine::kAvoir);
  }
  bool write(const dictionary::UserVerbRecord& /*record*/) override {
    diary.push_back("write " + entryText());
    return canWrite;
  }
  std::string shownInfinitive() const override { return shown; }
  std::string storedInfinitive() const override { return stored; }
  bool remove(std::string_view infinitive) override {
    diary.push_back("remove " + std::string(infinitive));
    return canWrite;
  }
  void focusForm(int slot) override { diary.push_back("focus " + std::to_string(slot)); }

  MessagesFake messages;
  app::EditMode mode{"Odmiennik v.1.0.12", *this, messages};
  Texts texts;
  app::EditPresentation seen = mode.presentation();
  std::vector<std::string> diary;
  bool canWrite = true;
  std::string shown, stored;  // infinitives
  std::string normalized;     // slot 96 where it is not what was typed

 private:
  void setText(int slot, std::string_view text) {
    std::string& box = texts[static_cast<std::size_t>(slot)];
    if (box == text) return;
    box = text;
    if (mode.boxChanged(entryText())) seen = mode.presentation();
  }
  std::string fill(const std::string& how) {
    diary.push_back(how + entryText());
    setText(0, "form of " + entryText());
    return normalized.empty() ? entryText() : normalized;
  }
};

}  // namespace odmiennik::testing
