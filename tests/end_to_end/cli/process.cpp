// SPDX-License-Identifier: GPL-3.0-or-later
// Starting the real command.
#include "process.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <sstream>
#include <stdexcept>

extern char** environ;

namespace odmiennik::end_to_end {
namespace {

constexpr int kLimitMilliseconds = 30000;

std::array<int, 2> makePipe() {
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  return ends;
}

void closeAndForget(int& descriptor) {
  if (descriptor >= 0) ::close(descriptor);
  descriptor = -1;
}

std::vector<char*> pointersTo(Arguments& texts) {
  std::vector<char*> pointers;
  for (std::string& text : texts) pointers.push_back(text.data());
  return pointers;
}

bool isNamedIn(const Arguments& environment, std::string_view variable) {
  const std::string_view name = variable.substr(0, variable.find('=') + 1);
  return std::any_of(environment.begin(), environment.end(),
                     [&](const std::string& other) { return other.starts_with(name); });
}

// A closed pipe is what a shell makes it for the programs that it starts, whatever the test does.
void obeyClosedPipes(posix_spawnattr_t& attributes) {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGPIPE);
  posix_spawnattr_setsigdefault(&attributes, &signals);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
}

pid_t spawn(Arguments arguments, Arguments environment, const std::array<int, 3>& streams) {
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  for (int stream = 0; stream < 3; ++stream)
    posix_spawn_file_actions_adddup2(&actions, streams[static_cast<std::size_t>(stream)], stream);
  std::vector<char*> values = pointersTo(arguments);
  std::vector<char*> variables = pointersTo(environment);
  for (char** variable = environ; *variable != nullptr; ++variable)
    if (!isNamedIn(environment, *variable)) variables.push_back(*variable);
  values.push_back(nullptr);
  variables.push_back(nullptr);
  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  obeyClosedPipes(attributes);
  pid_t pid = 0;
  const int fault =
      posix_spawn(&pid, values[0], &actions, &attributes, values.data(), variables.data());
  posix_spawnattr_destroy(&attributes);
  posix_spawn_file_actions_destroy(&actions);
  if (fault != 0) throw std::runtime_error("the command does not start: " + arguments[0]);
  return pid;
}

// The command in front of its arguments; a shell that is to start it stands there already.
Arguments withProgram(const Arguments& arguments) {
  Arguments all = arguments;
  if (all.empty() || all.front() != "/bin/sh") all.insert(all.begin(), command());
  return all;
}

}  // namespace

Process::Process(const Arguments& arguments, const Arguments& environment) {
  ::signal(SIGPIPE, SIG_IGN);
  auto input = makePipe();
  auto output = makePipe();
  auto errors = makePipe();
  pid_ = spawn(withProgram(arguments), environment, {input[0], output[1], errors[1]});
  for (int* unused : {&input[0], &output[1], &errors[1]}) closeAndForget(*unused);
  in_ = input[1];
  outPipe_ = output[0];
  errPipe_ = errors[0];
  ::fcntl(in_, F_SETFL, O_NONBLOCK);
}

Process::~Process() {
  for (int* end : {&in_, &outPipe_, &errPipe_}) closeAndForget(*end);
  if (pid_ == 0) return;
  ::kill(pid_, SIGKILL);
  ::waitpid(pid_, nullptr, 0);
}

void Process::closeInput() { closeAndForget(in_); }
void Process::closeOutput() { closeAndForget(outPipe_); }

void Process::readFrom(int& descriptor, std::string& text) {
  char block[65536];
  const ssize_t size = ::read(descriptor, block, sizeof block);
  if (size > 0)
    text.append(block, static_cast<std::size_t>(size));
  else
    closeAndForget(descriptor);
}

// One round of waiting: writes, reads, or finds that the time is over.
void Process::exchange(std::string_view& input, bool isFinishing) {
  if (input.empty() && isFinishing) closeInput();
  std::array<pollfd, 3> ends{
      {{input.empty() ? -1 : in_, POLLOUT, 0}, {outPipe_, POLLIN, 0}, {errPipe_, POLLIN, 0}}};
  if (::poll(ends.data(), ends.size(), kLimitMilliseconds) <= 0)
    throw std::runtime_error("the command neither reads nor answers");
  if (ends[0].revents != 0) {
    const ssize_t size = ::write(in_, input.data(), input.size());
    if (size < 0) closeInput();
    input.remove_prefix(size < 0 ? input.size() : static_cast<std::size_t>(size));
  }
  if (ends[1].revents != 0) readFrom(outPipe_, out_);
  if (ends[2].revents != 0) readFrom(errPipe_, err_);
}

void Process::write(std::string_view text) {
  while (!text.empty()) exchange(text, false);
}

std::string Process::readLine() {
  std::string_view nothing;
  std::size_t end = 0;
  while ((end = out_.find('\n')) == std::string::npos && outPipe_ >= 0) exchange(nothing, false);
  if (end == std::string::npos) return {};
  const std::string line = out_.substr(0, end);
  out_.erase(0, end + 1);
  return line;
}

void Process::finish(std::string_view input) {
  while (outPipe_ >= 0 || errPipe_ >= 0) exchange(input, true);
  closeInput();
  int status = 0;
  ::waitpid(pid_, &status, 0);
  pid_ = 0;
  exitCode_ = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  signal_ = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}

Result run(const Arguments& arguments, std::string_view input, const Arguments& environment) {
  Process process(arguments, environment);
  process.finish(input);
  return {process.exitCode(), process.out(), process.err()};
}

std::string command() {
  const char* other = std::getenv("ODMIEN");
  return other != nullptr ? other : ODMIEN;
}

Result runInShell(const Arguments& arguments, const std::string& redirections) {
  Arguments all{"/bin/sh", "-c", "exec \"$@\" " + redirections, "sh", command()};
  all.insert(all.end(), arguments.begin(), arguments.end());
  return run(all);
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

}  // namespace odmiennik::end_to_end
