// SPDX-License-Identifier: GPL-3.0-or-later
// The verb that was meant: written without its accents, or in the spelling of 1990.
#pragma once

#include <string>
#include <string_view>

namespace odmiennik::dictionary {

// The infinitive that the index knows under another spelling, with the reflexive prefix that was
// typed: "etre" -> "être", "s'assoir" -> "s'asseoir", "oeuvrer" -> "œuvrer". The index keeps the
// traditional spelling. The empty text when the index has the verb as it is, or none like it.
[[nodiscard]] std::string otherSpelling(std::string_view infinitive);

}  // namespace odmiennik::dictionary
