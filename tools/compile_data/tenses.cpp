// SPDX-License-Identifier: GPL-3.0-or-later
// Reading of the tenses.
#include "tools/compile_data/tenses.h"

#include "tools/compile_data/line_reader.h"

namespace odmiennik::tools {
namespace {

constexpr Utf8View kMoodWithoutName = "Indicatif";

SourceMood readMood(LineReader& line) {
  SourceMood mood;
  mood.name = line.takePart('|').takeRest("a mood is expected");
  mood.caption = line.takePart('|').takeRest("a caption is expected");
  mood.control = line.takeRest("a control is expected");
  return mood;
}

int readFormCount(LineReader cell) {
  const int count = cell.takeNumber(1, 6);
  if (count != 1 && count != 3 && count != 6) cell.fail("6, 3 or 1 forms are expected");
  cell.finish();
  return count;
}

SourceTense readTense(LineReader& line, const SourceMood& mood) {
  SourceTense tense{.mood = mood};
  LineReader constant = line.takePart('|');
  tense.constant = constant.takeIdentifier();
  constant.finish();
  tense.formCount = readFormCount(line.takePart('|'));
  tense.name = line.takePart('|').takeRest("a name is expected");
  tense.caption = line.takePart('|').takeRest("a caption is expected");
  tense.heading = line.takePart('|').takeRest("a control is expected");
  tense.isHeadingLink = line.take("link");
  if (tense.isHeadingLink || !line.isAtEnd()) tense.page = line.takeWord("a page is expected");
  line.finish();
  return tense;
}

}  // namespace

Utf8Text SourceTense::sourceName() const {
  if (mood.name == kMoodWithoutName) return name;
  Utf8Text whole = mood.name + " " + name;
  whole[0] = static_cast<char>(whole[0] - 'A' + 'a');
  return whole;
}

TenseTable::TenseTable(const std::string& path) : file_(readSource(path)) {
  Once once;
  SourceMood mood;
  for (const SourceLine& source : file_.lines) {
    LineReader line(file_, source);
    const LineReader whole = line;
    if (line.take("mood")) {
      mood = readMood(line);
      continue;
    }
    if (mood.name.empty()) line.fail("a mood is expected first");
    SourceTense tense = readTense(line, mood);
    tense.firstSlot = slotCount();
    once.note(whole, asUtf8(tense.constant));
    for (const Utf8Text& only : {tense.sourceName(), tense.heading}) once.note(whole, only);
    rows_.push_back(std::move(tense));
  }
}

int TenseTable::slotCount() const {
  return rows_.empty() ? 0 : rows_.back().firstSlot + rows_.back().formCount;
}

const SourceTense& TenseTable::of(std::string_view constant) const {
  for (const SourceTense& tense : rows_)
    if (tense.constant == constant) return tense;
  file_.fail(file_.lines.back(), "no tense is called " + inQuotes(asUtf8(constant)));
}

}  // namespace odmiennik::tools
