// SPDX-License-Identifier: GPL-3.0-or-later
// The command line.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "cli/slot_names.h"
#include "engine/utf8.h"
#include "formats/format.h"

namespace odmiennik::cli {

// What is asked for in the place of a conjugation: appends the answer to what stands behind the
// option ("a" of "--list a"), and says whether there is any.
using Query = bool (*)(Utf8Text& out, Utf8View text);

// When text stands in colours: on a terminal that wants them, or as it is said.
enum class Colours { automatic, always, never };

struct Options {
  Query query = nullptr;  // excludes infinitives
  Utf8View queryText;     // a letter, a prefix, an infinitive or nothing
  const formats::FormatRow* format = &formats::kFormats[0];
  Colours colours = Colours::automatic;
  bool isEditing = false;
  bool isInNorm = false;         // today's norm in the place of the system's forms
  bool isFinding = false;        // the arguments are forms, and their verbs are asked for
  bool isExplaining = false;     // the same, and how the forms came to be
  bool listsDepartures = false;  // only the forms in which the two differ
  Tenses tenses;                 // printed alone; without any all are
  Persons persons;
  std::optional<std::uint8_t> auxiliary;
  std::optional<Utf8View> folder;
  std::vector<Utf8View> infinitives;
};

// `error` is a Polish sentence, empty when the command line is right.
struct ParsedOptions {
  Options options;
  Utf8Text error;
};

// Options may stand between the infinitives, as "--format json", "--format=json", "-f json" or
// "-fjson"; behind "--" everything is an infinitive. The views are those of `arguments`.
[[nodiscard]] ParsedOptions parseOptions(std::span<const Utf8Text> arguments);

// An option takes its value into the options; false for a value that it does not know.
using Apply = bool (*)(Options&, Utf8View value);

struct OptionRow {
  Utf8View name;
  char letter;         // behind one dash it means the same; 0 where there is none
  Utf8View valueName;  // empty for an option without a value
  Apply apply;
  Utf8View help;  // Polish, one line
  // Of an option that takes several values, commas between them, and takes each by itself: all
  // that there are.
  Utf8Text (*values)() = nullptr;
};

// All options, in the order in which --help lists them.
[[nodiscard]] std::span<const OptionRow> optionRows();

}  // namespace odmiennik::cli
