// SPDX-License-Identifier: GPL-3.0-or-later
// What the program's command line says; decided before anything needs a screen.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "engine/utf8.h"

namespace odmiennik::app {

struct ProgramArguments {
  // What is to be told instead of opening the window: help, version, or why the arguments are
  // refused; safe to be shown on a terminal.
  Utf8Text told;
  bool isRefused = false;
  // --folder, byte for byte as given, but for separators at its end.
  std::optional<Utf8Text> folder;
  // The verb to conjugate at once, Windows-1252.
  std::optional<std::string> verb;
};

// Reads the arguments without the program's name, passing over those that Qt takes itself
// ("-platform", "offscreen"). Behind "--" everything is a verb; there may be one.
// Example: {"--folder=/home/ala/", "se laver"} -> folder "/home/ala", verb "se laver".
[[nodiscard]] ProgramArguments programArguments(std::span<const Utf8Text> arguments,
                                                Utf8View version);

}  // namespace odmiennik::app
