// SPDX-License-Identifier: GPL-3.0-or-later
// What one line of input or one argument asks: an infinitive, perhaps with a record.
#pragma once

#include <optional>
#include <string>

#include "cli/line_reader.h"
#include "engine/utf8.h"

namespace odmiennik::cli {

// Why a line could not be asked.
enum class QuestionFault { none, notUtf8, letterOutside, tooLong };

struct Question {
  Utf8Text typed;                     // what was typed; bytes that are none as U+FFFD
  std::string infinitive;             // Windows-1252
  std::optional<std::string> record;  // replaces the index's answer, Windows-1252
  QuestionFault fault = QuestionFault::none;
  std::size_t faultPosition = 0;  // the first bad byte, counted from 0 in the line
  Utf8Text faultText;  // the bad byte as "0xFF", the letter as "„ą” (U+0105)", what cannot be
                       // shown as "U+202E"
};

// Reads "INFINITIVE" or "INFINITIVE<TAB>RECORD"; the first TAB counts, and nothing behind it is the
// empty record. With a fault only `typed` and the fault are filled.
// Example: "neiger\t|1|2|1|1|1" -> "neiger" with the record "|1|2|1|1|1".
[[nodiscard]] Question questionOf(const InputLine& line);

// The Polish sentence that says why: "bajt 0xFF na pozycji 3 nie należy do tekstu UTF-8".
[[nodiscard]] Utf8Text faultSentence(const Question& question);

// What was asked as a message names it, „aller”: a line of ten thousand letters would hide the
// message.
[[nodiscard]] Utf8Text nameOf(std::string_view infinitive);

// `bytes` with U+FFFD for every byte that belongs to no UTF-8 sequence: "a\xFF" -> "a�".
[[nodiscard]] Utf8Text cleanUtf8(Utf8View bytes);

}  // namespace odmiennik::cli
