// SPDX-License-Identifier: GPL-3.0-or-later
// Running the command on a terminal of its own.
#include "terminal.h"

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <unistd.h>

#include <stdexcept>

namespace odmiennik::end_to_end {
namespace {

// The near end of a new terminal; the command opens the far end by its name.
class Terminal {
 public:
  Terminal() : end_(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
    if (end_ < 0 || ::grantpt(end_) != 0 || ::unlockpt(end_) != 0)
      throw std::runtime_error("no terminal");
    far_ = ::open(name().c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  }
  ~Terminal() {
    ::close(far_);
    ::close(end_);
  }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  [[nodiscard]] std::string name() const { return ::ptsname(end_); }

  // As a user types it; nothing is lost before somebody reads.
  void type(std::string_view text) const {
    if (::write(end_, text.data(), text.size()) != static_cast<ssize_t>(text.size()))
      throw std::runtime_error("the terminal takes no text");
  }

  // What has been shown and not yet read; nothing when no more comes for now.
  [[nodiscard]] std::string read(int waitMilliseconds) const {
    pollfd end{end_, POLLIN, 0};
    if (::poll(&end, 1, waitMilliseconds) <= 0) return {};
    char block[4096];
    const ssize_t size = ::read(end_, block, sizeof block);
    return {block, size > 0 ? static_cast<std::size_t>(size) : 0};
  }

 private:
  int end_;
  // Held open until the command has ended: without a far end the near one reads as closed.
  int far_ = -1;
};

}  // namespace

std::string runOnTerminal(const Arguments& arguments, const Arguments& environment,
                          std::string_view typed) {
  constexpr int kLimitMilliseconds = 30000;
  const Terminal terminal;
  terminal.type(typed);
  const std::string input = typed.empty() ? "" : " <" + terminal.name();
  Arguments all{
      "/bin/sh", "-c",
      "\"$@\"" + input + " >" + terminal.name() + " 2>&1; echo '~koniec~' >" + terminal.name(),
      "sh", command()};
  all.insert(all.end(), arguments.begin(), arguments.end());
  Process process(all, environment);
  std::string shown;
  while (shown.find("~koniec~") == std::string::npos) {
    const std::string part = terminal.read(kLimitMilliseconds);
    if (part.empty()) throw std::runtime_error("the command shows nothing more");
    shown += part;
  }
  process.finish({});
  return shown;
}

}  // namespace odmiennik::end_to_end
