// SPDX-License-Identifier: GPL-3.0-or-later
// Asking the command's parts without a process: one line in, one answer or its text out.
#pragma once

#include <optional>
#include <string_view>

#include "cli/answerer.h"
#include "engine/utf8.h"
#include "engine/windows1252.h"
#include "formats/format.h"

namespace odmiennik::cli {

class NoUserVerbs final : public engine::UserVerbs {
 public:
  bool load(std::string_view, engine::FormTable&, std::uint8_t&) override { return false; }
};

class Asking {
 public:
  explicit Asking(AnswerOptions options = {}) : answerer_(userVerbs_, messages_, options) {}

  // `line` in UTF-8, as it stands on standard input.
  formats::Answer answer(Utf8View line) {
    question_ = questionOf({.number = 1, .bytes = line});
    return answerer_.answer(question_);
  }

  Utf8Text textOf(formats::Format& format, Utf8View line) {
    Utf8Text out;
    format.append(out, answer(line));
    return out;
  }

  Utf8Text box(Utf8View line, int slot) {
    return engine::toUtf8(answer(line).conjugation.shown.boxes[static_cast<std::size_t>(slot)]);
  }

  [[nodiscard]] const MessageLog& messages() const { return messages_; }

 private:
  NoUserVerbs userVerbs_;
  MessageLog messages_;
  Question question_;
  Answerer answerer_;
};

}  // namespace odmiennik::cli
