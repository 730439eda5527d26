// SPDX-License-Identifier: GPL-3.0-or-later
// The command `odmien`.
#include "cli/command.h"

#include "cli/conjugation_run.h"
#include "cli/find_run.h"
#include "cli/options.h"

namespace odmiennik::cli {

ExitStatus runCommand(std::span<const Utf8Text> arguments, Console& console) {
  const ParsedOptions parsed = parseOptions(arguments);
  if (!parsed.error.empty()) {
    console.complain(parsed.error + " Pomoc: odmien --help");
    return ExitStatus::wrongUsage;
  }
  const Options& options = parsed.options;
  const bool isOfForms = options.isFinding || options.isExplaining;
  if (options.query == nullptr && isOfForms)
    return console.finish(FindRun(options, console).answerAll());
  if (options.query == nullptr) return console.finish(ConjugationRun(options, console).answerAll());
  if (options.query(console.out().text(), options.queryText))
    return console.finish(ExitStatus::allConjugated);
  console.complain("w spisie nic takiego nie ma.");
  return ExitStatus::verbRefused;
}

}  // namespace odmiennik::cli
