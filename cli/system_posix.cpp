// SPDX-License-Identifier: GPL-3.0-or-later
// The seam on POSIX systems.
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>

#include "cli/system.h"

namespace odmiennik::cli {

void prepareStreams() { std::signal(SIGPIPE, SIG_IGN); }

std::vector<std::string> arguments(int count, char** values) {
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

WriteResult write(Stream stream, std::string_view bytes) {
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

std::string environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

}  // namespace odmiennik::cli
