// SPDX-License-Identifier: GPL-3.0-or-later
// The command line.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cli/format.h"

namespace odmiennik::cli {

// What is asked for in the place of a conjugation: appends the answer to what stands behind the
// option ("a" of "--list a"), and says whether there is any.
using Query = bool (*)(std::string& out, std::string_view text);

struct Options {
  Query query = nullptr;       // excludes infinitives
  std::string_view queryText;  // a letter, a prefix, an infinitive or nothing
  const FormatRow* format = &kFormats[0];
  bool isEditing = false;
  bool isInNorm = false;         // today's norm in the place of the system's forms
  bool isFinding = false;        // the arguments are forms, and their verbs are asked for
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

// An option takes its value into the options; false for a value that it does not know.
using Apply = bool (*)(Options&, std::string_view value);

struct OptionRow {
  std::string_view name;
  std::string_view valueName;  // empty for an option without a value
  Apply apply;
  std::string_view help;  // Polish, one line
};

// All options, in the order in which --help lists them.
[[nodiscard]] std::span<const OptionRow> optionRows();

}  // namespace odmiennik::cli
