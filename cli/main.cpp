// SPDX-License-Identifier: GPL-3.0-or-later
// The program `odmien`.
#include "cli/command.h"

int main(int count, char** values) {
  using namespace odmiennik::cli;
  prepareStreams();
  Console console;
  return static_cast<int>(runCommand(arguments(count, values), console));
}
