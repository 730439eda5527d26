// SPDX-License-Identifier: GPL-3.0-or-later
// The seam on POSIX systems.
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>

#include "cli/system.h"

namespace odmiennik::cli {

namespace {
void (*closedPipeHandler)(int) = SIG_DFL;
}  // namespace

void prepareStreams() { closedPipeHandler = std::signal(SIGPIPE, SIG_IGN); }

void endAtClosedPipe() {
  std::signal(SIGPIPE, closedPipeHandler);
  std::raise(SIGPIPE);
}

Utf8View endOfInputKeys() { return "Ctrl+D"; }

std::vector<Utf8Text> arguments(int count, char** values) {
  if (count < 2) return {};
  return {values + 1, values + count};
}

std::optional<std::size_t> readInput(std::span<char> buffer) {
  for (;;) {
    const ssize_t size = ::read(STDIN_FILENO, buffer.data(), buffer.size());
    if (size >= 0) return static_cast<std::size_t>(size);
    if (errno != EINTR) return std::nullopt;
  }
}

WriteResult write(Stream stream, Utf8View bytes) {
  while (!bytes.empty()) {
    const ssize_t size = ::write(static_cast<int>(stream), bytes.data(), bytes.size());
    if (size >= 0)
      bytes.remove_prefix(static_cast<std::size_t>(size));
    else if (errno != EINTR)
      return errno == EPIPE ? WriteResult::closed : WriteResult::failed;
  }
  return WriteResult::written;
}

bool isTerminal(Stream stream) { return ::isatty(static_cast<int>(stream)) == 1; }

Utf8Text environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? Utf8Text() : Utf8Text(value);
}

}  // namespace odmiennik::cli
