// SPDX-License-Identifier: GPL-3.0-or-later
// Questions to the verb index and the string table.
#include "cli/index_queries.h"

#include "dictionary/verb_index.h"
#include "engine/normalization.h"
#include "engine/string_table.h"
#include "engine/windows1252.h"
#include "finder/letters.h"
#include "formats/tense_name.h"

namespace odmiennik::cli {
namespace {

bool appendLine(Utf8Text& out, std::string_view french) {
  if (french.empty()) return false;
  engine::appendUtf8(out, french);
  out.push_back('\n');
  return true;
}

// The tips are the only texts of the table that are not French.
constexpr bool isUtf8Entry(int identifier) {
  return identifier >= engine::text_id::kTipCount && identifier < 62;
}

}  // namespace

bool appendVerbsBeginning(Utf8Text& out, Utf8View beginning) {
  engine::FromUtf8 french = engine::fromUtf8(beginning);
  if (french.fault != engine::Utf8Fault::none) return false;
  engine::lowerCase(french.text);
  const finder::Folded wanted(french.text);
  bool hasFound = false;
  for (int position = 0; position < dictionary::verbCount(); ++position) {
    const std::string_view verb = dictionary::verbAt(position);
    if (wanted.isTooLong() || !finder::Folded(verb).text().starts_with(wanted.text())) continue;
    hasFound = appendLine(out, verb);
  }
  return hasFound;
}

bool appendCompletion(Utf8Text& out, Utf8View prefix) {
  const engine::FromUtf8 french = engine::fromUtf8(prefix);
  return french.fault == engine::Utf8Fault::none &&
         appendLine(out, dictionary::completion(french.text));
}

bool appendRecord(Utf8Text& out, Utf8View infinitive) {
  const engine::FromUtf8 french = engine::fromUtf8(infinitive);
  if (french.fault != engine::Utf8Fault::none) return false;
  dictionary::GeneralVerbIndex index;
  return appendLine(out, index.record(engine::lookupKey(french.text)));
}

bool appendSlots(Utf8Text& out, Utf8View) {
  out.append("slot\tmood\ttense\tperson\tname\n");
  for (int slot = 0; slot < engine::kSlotCount; ++slot) {
    const engine::Tense& tense = engine::tenseOf(slot);
    out.append(decimal(slot));
    for (const Utf8View field : {tense.mood, tense.name, engine::personOf(slot)})
      out.append("\t").append(field);
    out.append("\t").append(formats::tenseName(tense)).append("\n");
  }
  return true;
}

bool appendStrings(Utf8Text& out, Utf8View) {
  for (int identifier = 1; identifier <= engine::text_id::kLast; ++identifier) {
    const std::string_view text = engine::textOf(identifier);
    if (text.empty()) continue;
    out.append(decimal(identifier)).push_back('\t');
    if (isUtf8Entry(identifier))
      out.append(asUtf8(text));
    else
      engine::appendUtf8(out, text);
    out.push_back('\n');
  }
  return true;
}

}  // namespace odmiennik::cli
