// SPDX-License-Identifier: GPL-3.0-or-later
// One line of the user-verbs file: 101 forms and the auxiliary.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "engine/flags.h"
#include "engine/form_table.h"

namespace odmiennik::dictionary {

// A record as it is saved: 101 forms (Windows-1252) and the auxiliary (0 être, 1 avoir).
struct UserVerbRecord {
  engine::FormTable forms;
  std::uint8_t auxiliary = engine::kAvoir;
};

// What is asked of every record on the way to the one that is wanted.
struct RecordOutline {
  std::string_view infinitive;  // slot 96 as it stands in the line
  std::uint8_t flag = 0;
};

// The outline of a record's line, or nothing for a damaged one: fewer than 102 fields, or a last
// field that is no flag.
[[nodiscard]] std::optional<RecordOutline> outlineOf(std::string_view line);

// The flag is the last field of its record: a whole number from 0 to 255 in decimal digits, with or
// without a sign and a fraction of zeros: " 1", "+1", "01", "1.0", "-0" are flags; "", "-1", "256",
// "0.5", "1e0", "1 0" are not.
[[nodiscard]] std::optional<std::uint8_t> parseFlag(std::string_view field);

// The auxiliary a flag stands for. The check box that wrote it knows 0 and 1; any other number is,
// like a ticked box, avoir.
[[nodiscard]] constexpr std::uint8_t auxiliaryOf(std::uint8_t flag) {
  return flag == 0 ? engine::kEtre : engine::kAvoir;
}

// Puts the first 101 fields of a line into the slots; slots without a field are emptied. The
// infinitive comes as it would be kept today: "Se laver" of an older file is "se laver".
void readForms(std::string_view line, engine::FormTable& forms);

// The line of a record in the writer's format: every form trimmed and followed by a comma, a blank
// and the flag, CR LF; the infinitive as it is kept (engine::keptInfinitive). A line break inside a
// form becomes a blank, since it would end the record.
[[nodiscard]] std::string recordLine(const UserVerbRecord& record);

// The slot of the first form with which the record's line could not be read back as it was: one
// that begins with a double quote, or has one right behind a comma. The quote takes the rest of the
// line, or is lost with the one that closes it.
[[nodiscard]] std::optional<int> quotedForm(const UserVerbRecord& record);

// The same as recordLine for a record read from a line. Fields between slot 100 and the flag, left
// there by a form with a comma, stay.
[[nodiscard]] std::string rewrittenLine(std::string_view line);

}  // namespace odmiennik::dictionary
