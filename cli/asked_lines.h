// SPDX-License-Identifier: GPL-3.0-or-later
// What is asked: the arguments, or the lines of standard input.
#pragma once

#include <functional>
#include <span>

#include "cli/console.h"
#include "cli/line_reader.h"
#include "engine/utf8.h"

namespace odmiennik::cli {

// Calls `answer` with each argument, which complaints call "argument"; where one is "-", and where
// there is none, with each line of standard input ("wiersz"). `beforeWaiting` is called first and
// whenever there is nothing to answer for the moment: whoever waits for an answer before asking on
// has it by then. False, with a complaint, when the input cannot be read.
[[nodiscard]] bool answerAsked(
    Console& console, std::span<const Utf8View> arguments,
    const std::function<void(const InputLine&, Utf8View)>& answer,
    const std::function<void()>& beforeWaiting = [] {});

}  // namespace odmiennik::cli
