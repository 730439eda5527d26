// SPDX-License-Identifier: GPL-3.0-or-later
// Starting the real command, talking to it and waiting for its end, all with a time limit.
#pragma once

#include <sys/types.h>

#include <string>
#include <string_view>
#include <vector>

namespace odmiennik::end_to_end {

using Arguments = std::vector<std::string>;

// A started `odmien` whose three streams are pipes.
class Process {
 public:
  // `environment` replaces variables of the test's own: {"NO_COLOR=1"}.
  explicit Process(const Arguments& arguments, const Arguments& environment = {});
  ~Process();
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  // Writes what the process takes of `text`.
  void write(std::string_view text);
  void closeInput();
  void closeOutput();

  // Waits for the next line of standard output; without it within the time limit, nothing.
  [[nodiscard]] std::string readLine();

  // Gives the process the rest of its input while reading what it says, and waits for its end.
  void finish(std::string_view input);

  [[nodiscard]] const std::string& out() const { return out_; }
  [[nodiscard]] const std::string& err() const { return err_; }
  // The exit code; -1 when a signal or the time limit ended the process.
  [[nodiscard]] int exitCode() const { return exitCode_; }
  // The signal that ended the process; 0 when none did.
  [[nodiscard]] int endedBySignal() const { return signal_; }

 private:
  void exchange(std::string_view& input, bool isFinishing);
  void readFrom(int& descriptor, std::string& text);

  pid_t pid_ = 0;
  int in_ = -1;
  int outPipe_ = -1;
  int errPipe_ = -1;
  int exitCode_ = -1;
  int signal_ = 0;
  std::string out_;
  std::string err_;
};

// The command that is tested: this build's, or the one that the environment variable ODMIEN names,
// so that the same tests try a program built otherwise.
[[nodiscard]] std::string command();

[[nodiscard]] inline bool holds(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

struct Result {
  int exitCode;
  std::string out;
  std::string err;
};

// Runs the command to its end.
[[nodiscard]] Result run(const Arguments& arguments, std::string_view input = {},
                         const Arguments& environment = {});

// Runs it through the shell with `redirections`: runInShell({"parler"}, ">/dev/full").
[[nodiscard]] Result runInShell(const Arguments& arguments, const std::string& redirections);

[[nodiscard]] std::vector<std::string> linesOf(const std::string& text);

}  // namespace odmiennik::end_to_end
