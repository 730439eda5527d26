// SPDX-License-Identifier: GPL-3.0-or-later
// A finder beside a folder of the user's, and its answers as one reads them.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "dictionary/user_verbs.h"
#include "finder/finder.h"
#include "tests/unit/dictionary/program_files.h"

namespace odmiennik::testing {

using Lines = std::vector<std::string>;

class Finding : public ::testing::Test {
 protected:
  // Each reading as "que nous allions | aller | Subjonctif présent", with "f", "mp" or "fp" behind
  // that of a participle that agrees, "system" or "norm" behind what only one of them has, and
  // "accents" or "slip" behind what is not spelt so.
  Lines find(std::string_view typed);
  // The infinitives alone, each once.
  Lines verbsOf(std::string_view typed);
  const finder::Readings& readingsOf(std::string_view typed);

  // Saves own verbs as the window does, by their infinitives and some forms.
  void save(std::string_view infinitive, const std::map<int, std::string_view>& forms = {});

  ProgramFolder folder_;
  RecordedMessages messages_;
  dictionary::UserVerbsFile userVerbs_{folder_.prefix(), 0, messages_};
  finder::Finder finder_{userVerbs_};
  finder::Readings readings_;
};

}  // namespace odmiennik::testing
