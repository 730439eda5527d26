// SPDX-License-Identifier: GPL-3.0-or-later
// What chmcmd leaves to be done to a help file: contexts that name pages as viewers ask for them,
// and the same bytes for the same pages, whenever and wherever they are compiled.
#pragma once

#include <string>
#include <string_view>

namespace odmiennik::tools {

// The page of context 2, which the Help button of the entry box's hint asks for.
inline constexpr std::string_view kContextPage = "strony/JakOdmienic.htm";

// The record "/#IVB" of a help file whose record "/#STRINGS" is `strings`: context 2 is
// kContextPage. Throws std::runtime_error when the strings do not have the page.
[[nodiscard]] std::string contextRecord(std::string_view strings);

// A record as long as that of contextRecord, to be compiled before the strings are known.
[[nodiscard]] std::string emptyContextRecord();

// The help file without the times at which it was compiled: that of its head and that of its record
// "/#SYSTEM" are nought. Throws std::runtime_error when it has not one of each.
[[nodiscard]] std::string withoutTimes(std::string file);

}  // namespace odmiennik::tools
