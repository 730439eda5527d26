// SPDX-License-Identifier: GPL-3.0-or-later
// Fuzz target: any arguments of the window and of the command, and any line given to the command.
#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "app/logic/program_arguments.h"
#include "cli/options.h"
#include "cli/question.h"
#include "dictionary/printable.h"
#include "engine/windows1252.h"
#include "tests/fuzz/fuzz_input.h"

namespace odmiennik::testing {
namespace {

// Arguments end with a zero byte, as the system hands them over.
std::vector<Utf8Text> argumentsOf(std::string_view bytes) {
  std::vector<Utf8Text> arguments;
  while (!bytes.empty()) {
    const auto end = std::min(bytes.find('\0'), bytes.size());
    arguments.emplace_back(asUtf8(bytes.substr(0, end)));
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
  }
  return arguments;
}

bool isHarmless(Utf8View text) {
  while (!text.empty()) {
    const engine::DecodedCodePoint letter = engine::decodeUtf8(text);
    if (letter.length == 0) return false;
    if (letter.value != U'\n' && dictionary::actsOnTerminal(letter.value)) return false;
    text.remove_prefix(static_cast<std::size_t>(letter.length));
  }
  return true;
}

void openTheWindow(const std::vector<Utf8Text>& arguments) {
  const app::ProgramArguments read = app::programArguments(arguments, "1.2.3");
  require(isHarmless(read.told), "what is told obeys nobody");
  require(!read.isRefused || !read.told.empty(), "a refusal says why");
  if (read.folder) require(!read.folder->ends_with('/'), "a folder has no separator at its end");
}

bool isAmong(const std::vector<Utf8Text>& arguments, Utf8View view) {
  return std::ranges::any_of(arguments, [&](const Utf8Text& argument) {
    return view.data() >= argument.data() &&
           view.data() + view.size() <= argument.data() + argument.size();
  });
}

void startTheCommand(const std::vector<Utf8Text>& arguments) {
  const cli::ParsedOptions parsed = cli::parseOptions(arguments);
  require(isHarmless(dictionary::printable(parsed.error)), "an error can be shown");
  if (!parsed.error.empty()) return;
  for (const Utf8View verb : parsed.options.infinitives)
    require(isAmong(arguments, verb), "a verb is a part of the arguments");
  if (parsed.options.folder) require(!parsed.options.folder->empty(), "a folder has a name");
}

void ask(std::string_view bytes) {
  const auto source = [rest = bytes](std::span<char> buffer) mutable {
    const std::size_t size = std::min(buffer.size(), rest.size());
    std::ranges::copy(rest.substr(0, size), buffer.begin());
    rest.remove_prefix(size);
    return std::optional(size);
  };
  cli::LineReader lines(source);
  cli::InputLine line;
  while (lines.next(line)) {
    require(line.bytes.size() <= cli::kLongestLine, "a line stays within bounds");
    const cli::Question question = cli::questionOf(line);
    require(engine::fromUtf8(cli::cleanUtf8(line.bytes)).fault != engine::Utf8Fault::notUtf8,
            "what was typed is shown as UTF-8");
    const bool isRefused = question.fault != cli::QuestionFault::none;
    if (isRefused) require(isHarmless(cli::faultSentence(question)), "a fault is told harmlessly");
    if (isRefused) require(question.infinitive.empty(), "a faulty line asks nothing");
  }
}

}  // namespace
}  // namespace odmiennik::testing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace odmiennik::testing;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const auto arguments = argumentsOf(bytes);
  openTheWindow(arguments);
  startTheCommand(arguments);
  ask(bytes);
  return 0;
}
