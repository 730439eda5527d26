// The command `odmien`.
#include "cli/command.h"

#include "cli/conjugation_run.h"
#include "cli/index_queries.h"
#include "cli/options.h"

namespace odmiennik::cli {
namespace {

bool appendText(std::string& out, std::string_view text) {
  out.append(text);
  return true;
}

// Appends what a task other than a conjugation asks for; false when the index has nothing.
bool appendAnswer(std::string& out, const Options& options) {
  switch (options.task) {
    case Task::help:
      return appendText(out, helpText());
    case Task::version:
      return appendText(out, "odmien " ODMIENNIK_VERSION "\n");
    case Task::strings:
      return appendStrings(out);
    case Task::list:
      return appendVerbsOfLetter(out, options.taskText.front());
    case Task::complete:
      return appendCompletion(out, options.taskText);
    case Task::record:
      return appendRecord(out, options.taskText);
    case Task::conjugation:
      break;
  }
  return false;
}

}  // namespace

ExitStatus runCommand(std::span<const std::string> arguments, Console& console) {
  const ParsedOptions parsed = parseOptions(arguments);
  if (!parsed.error.empty()) {
    console.complain(parsed.error + " Pomoc: odmien --help");
    return ExitStatus::wrongUsage;
  }
  if (parsed.options.task == Task::conjugation)
    return console.finish(ConjugationRun(parsed.options, console).answerAll());
  if (appendAnswer(console.out().text(), parsed.options))
    return console.finish(ExitStatus::allConjugated);
  console.complain("w spisie nic takiego nie ma.");
  return ExitStatus::verbRefused;
}

}  // namespace odmiennik::cli
