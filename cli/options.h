// The command line.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace odmiennik::cli {

enum class OutputFormat { text, tsv, json };

// What is asked for; everything but `conjugation` excludes infinitives.
enum class Task { conjugation, help, version, strings, list, complete, record };

struct Options {
  Task task = Task::conjugation;
  std::string_view taskText;  // the letter, the prefix or the infinitive of an index query
  OutputFormat format = OutputFormat::text;
  bool isEditing = false;
  bool isInNorm = false;         // today's norm in the place of the system's forms
  bool listsDepartures = false;  // only the forms in which the two differ
  std::optional<std::uint8_t> auxiliary;
  std::optional<std::string_view> folder;
  std::vector<std::string_view> infinitives;
};

// `error` is a Polish sentence, empty when the command line is right.
struct ParsedOptions {
  Options options;
  std::string error;
};

// Options may stand between the infinitives, as "--format json" or "--format=json"; behind "--"
// everything is an infinitive. The views are those of `arguments`.
[[nodiscard]] ParsedOptions parseOptions(std::span<const std::string> arguments);

// The text of --help, Polish.
[[nodiscard]] std::string helpText();

}  // namespace odmiennik::cli
