// SPDX-License-Identifier: GPL-3.0-or-later
// Answers one question after another, each as a program just started would.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "cli/message_log.h"
#include "cli/question.h"
#include "dictionary/builtin_verbs.h"
#include "dictionary/verb_index.h"
#include "engine/driver.h"
#include "engine/utf8.h"
#include "formats/answer.h"
#include "groups/rules.h"

namespace odmiennik::cli {

// The general index, or for one question the record that came with it.
class RecordSource final : public engine::VerbIndex {
 public:
  void give(std::optional<std::string_view> record) { given_ = record; }
  [[nodiscard]] std::string_view record(std::string_view infinitive) override;

 private:
  dictionary::GeneralVerbIndex index_;
  std::optional<std::string_view> given_;
};

// How the window is used for every question.
struct AnswerOptions {
  bool isEditing = false;
  std::optional<std::uint8_t> auxiliary;  // the click on the auxiliary's box that follows
  engine::Variety variety = engine::Variety::system;
  formats::SlotChoice slots = {};  // what is printed
};

class Answerer {
 public:
  Answerer(engine::UserVerbs& userVerbs, MessageLog& messages, AnswerOptions options);

  // A question with a fault is answered by an empty table, displayed; "resetuj" by its message and
  // a table that is not. The answer is valid until the next question.
  [[nodiscard]] formats::Answer answer(const Question& question);

 private:
  void beginAsJustStarted();
  engine::Outcome conjugate(std::string_view infinitive);
  void showNothing();

  MessageLog& messages_;
  AnswerOptions options_;
  RecordSource records_;
  dictionary::BuiltinVerbTable builtinVerbs_;
  groups::VerbGroups rules_;
  engine::Driver driver_;
  engine::Conjugation conjugation_;
};

}  // namespace odmiennik::cli
