// SPDX-License-Identifier: GPL-3.0-or-later
// The one seam between the command and the system: standard streams as bytes, and the arguments.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "engine/utf8.h"

namespace odmiennik::cli {

enum class Stream { in = 0, out = 1, err = 2 };

// What became of a write: `closed` when nobody reads any more, `failed` for a full disk and the
// like.
enum class WriteResult { written, closed, failed };

// Makes the streams pass bytes unchanged, and a closed pipe an answer instead of a signal.
void prepareStreams();

// Ends the program as one that knows nothing of closed pipes: by the signal of the system. Returns
// where the system has none, or where whoever started the program does not want it.
void endAtClosedPipe();

// What a user presses on a terminal when there is no more input.
[[nodiscard]] Utf8View endOfInputKeys();

// The arguments in UTF-8, without the program's name.
[[nodiscard]] std::vector<Utf8Text> arguments(int count, char** values);

// Waits for input and returns how many bytes it read: 0 at the end, nothing when it cannot be read.
[[nodiscard]] std::optional<std::size_t> readInput(std::span<char> buffer);

// Writes all of `bytes`.
[[nodiscard]] WriteResult write(Stream stream, Utf8View bytes);

[[nodiscard]] bool isTerminal(Stream stream);

// An environment variable in UTF-8; the empty text when it is not set.
[[nodiscard]] Utf8Text environment(const char* name);

}  // namespace odmiennik::cli
