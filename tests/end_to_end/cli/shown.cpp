// SPDX-License-Identifier: GPL-3.0-or-later
// What the command shows of one verb, read from its JSON object.
#include "shown.h"

#include <gtest/gtest.h>

namespace odmiennik::end_to_end {
namespace {

// The texts of one of the object's arrays.
std::vector<std::string> textsOf(const std::string& json, const std::string& key) {
  std::vector<std::string> texts;
  const std::string opening = "\"" + key + "\":[";
  const std::size_t start = json.find(opening);
  if (start == std::string::npos) return texts;
  bool isInside = false;
  for (std::size_t at = start + opening.size(); at < json.size(); ++at) {
    if (!isInside && json[at] == ']') break;
    if (json[at] == '"') {
      isInside = !isInside;
      if (isInside) texts.emplace_back();
    } else if (isInside) {
      if (json[at] == '\\') ++at;
      texts.back() += json[at];
    }
  }
  return texts;
}

std::string answerTo(const std::string& typed, const Arguments& options) {
  Arguments arguments{"--format", "json"};
  arguments.insert(arguments.end(), options.begin(), options.end());
  arguments.insert(arguments.end(), {"--", typed});
  return run(arguments).out;
}

}  // namespace

Shown::Shown(const std::string& typed, const Arguments& options)
    : json_(answerTo(typed, options)),
      boxes_(textsOf(json_, "boxes")),
      pronouns_(textsOf(json_, "pronouns")),
      captions_(textsOf(json_, "captions")) {
  EXPECT_EQ(boxes_.size(), kBoxes) << typed << ": " << json_;
  boxes_.resize(kBoxes);
}

const std::string& Shown::box(int slot) const { return boxes_.at(static_cast<std::size_t>(slot)); }

const std::string& Shown::pronoun(int slot) const {
  return pronouns_.at(static_cast<std::size_t>(slot));
}

const std::string& Shown::caption(int number) const {
  return captions_.at(static_cast<std::size_t>(number));
}

std::string Shown::tense(int firstSlot) const {
  constexpr int kFirstWithoutSixPersons = 90;
  std::string row = box(firstSlot);
  const int slots = firstSlot < kFirstWithoutSixPersons ? 6 : 3;
  for (int i = 1; i < slots; ++i) row += " | " + box(firstSlot + i);
  return row;
}

bool Shown::has(const std::string& key, const std::string& value) const {
  return json_.find("\"" + key + "\":" + value) != std::string::npos;
}

std::string messages(const std::string& text) { return text.empty() ? "[]" : "[\"" + text + "\"]"; }

}  // namespace odmiennik::end_to_end
