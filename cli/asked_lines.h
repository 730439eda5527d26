// SPDX-License-Identifier: GPL-3.0-or-later
// What is asked: the arguments, or the lines of standard input.
#pragma once

#include <functional>
#include <span>

#include "cli/console.h"
#include "cli/line_reader.h"
#include "engine/utf8.h"

namespace odmiennik::cli {

// What complaints call a line of standard input.
inline constexpr Utf8View kInputLine = "wiersz";

// Where a line stands, as complaints name it: "wiersz 3", "argument 2".
[[nodiscard]] Utf8Text placeOf(const InputLine& line, Utf8View name);

// Whether it is a line of standard input without anything in it but blanks and tabs. An argument is
// never without: whoever gives an empty one has made a mistake.
[[nodiscard]] bool isBlankInput(const InputLine& line, Utf8View name);

// Calls `answer` with each argument, which complaints call "argument"; where one is "-", and where
// there is none, with each line of standard input (kInputLine). `beforeWaiting` is called first and
// whenever there is nothing to answer for the moment: whoever waits for an answer before asking on
// has it by then. A user who is to type the lines is told so: they are `awaited`, "formy". False,
// with a complaint, when the input cannot be read.
[[nodiscard]] bool answerAsked(
    Console& console, std::span<const Utf8View> arguments,
    const std::function<void(const InputLine&, Utf8View)>& answer,
    const std::function<void()>& beforeWaiting = [] {}, Utf8View awaited = "czasowniki");

}  // namespace odmiennik::cli
