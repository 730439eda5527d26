// SPDX-License-Identifier: GPL-3.0-or-later
// Readings as a table, as tab-separated values and as JSON.
#include "cli/reading_formats.h"

#include <algorithm>

#include "dictionary/printable.h"
#include "engine/slots.h"
#include "formats/json_text.h"
#include "formats/page.h"
#include "formats/printable.h"

namespace odmiennik::cli {
namespace {

using finder::Match;
using finder::Reading;
using finder::Readings;

// "both", "system", "norm": who has the form so.
Utf8View varietyOf(const Reading& reading) {
  if (reading.isInSystem && reading.isInNorm) return "both";
  return reading.isInSystem ? "system" : "norm";
}

// How the participle agrees: "m", "f", "mp", "fp"; nothing of a form without one.
Utf8View agreementOf(const Reading& reading) {
  constexpr Utf8View kNames[] = {"m", "f", "mp", "fp"};
  return reading.hasParticiple ? kNames[static_cast<std::size_t>(reading.agreed)] : Utf8View{};
}

// The columns of the table.
constexpr std::size_t kPhrase = 2, kInfinitive = 30, kTense = 48, kGap = 2;

void beginColumn(formats::Page& page, std::size_t column) {
  page.moveTo(std::max(column, page.column() + kGap));
}

void appendText(Utf8Text& out, Utf8View typed, const Readings& readings) {
  if (readings.empty()) return;
  formats::Page page(out, false);
  page.addUtf8(dictionary::printable(typed));
  page.endLine();
  Match match = Match::exact;
  for (const Reading& reading : readings) {
    if (reading.match != match) {
      match = reading.match;
      page.moveTo(kPhrase);
      page.addUtf8(finder::headingOf(match));
      page.endLine();
    }
    page.moveTo(kPhrase);
    page.addFrench(finder::phraseOf(reading));
    beginColumn(page, kInfinitive);
    page.addFrench(finder::infinitiveOf(reading));
    beginColumn(page, kTense);
    page.addUtf8(finder::placeInWords(reading));
    page.endLine();
  }
}

void appendTsv(Utf8Text& out, Utf8View typed, const Readings& readings) {
  for (const Reading& reading : readings) {
    const engine::Tense& tense = engine::tenseOf(reading.slot);
    dictionary::appendPrintable(out, typed);
    out.push_back('\t');
    formats::appendPrintable(out, finder::phraseOf(reading));
    out.push_back('\t');
    formats::appendPrintable(out, finder::infinitiveOf(reading));
    out.append("\t").append(decimal(reading.slot));
    for (const Utf8View field : {tense.mood, tense.name, engine::personOf(reading.slot),
                                 agreementOf(reading), varietyOf(reading), nameOf(reading.match)})
      out.append("\t").append(field);
    out.push_back('\n');
  }
}

void appendReading(Utf8Text& out, const Reading& reading) {
  const engine::Tense& tense = engine::tenseOf(reading.slot);
  out.append("{\"phrase\":");
  formats::appendJsonFrench(out, finder::phraseOf(reading));
  formats::appendJsonKey(out, "form");
  formats::appendJsonFrench(out, reading.form);
  formats::appendJsonKey(out, "infinitive");
  formats::appendJsonFrench(out, finder::infinitiveOf(reading));
  formats::appendJsonKey(out, "slot");
  out.append(decimal(reading.slot));
  formats::appendJsonTexts(out, {{"mood", tense.mood},
                                 {"tense", tense.name},
                                 {"person", engine::personOf(reading.slot)},
                                 {"agreement", agreementOf(reading)},
                                 {"variety", varietyOf(reading)},
                                 {"match", nameOf(reading.match)}});
  formats::appendJsonKey(out, "own");
  out.append(reading.isOwn ? "true}" : "false}");
}

// One object a question, in their order.
void appendJson(Utf8Text& out, Utf8View typed, const Readings& readings) {
  out.append("{\"typed\":");
  formats::appendJsonUtf8(out, typed);
  out.append(",\"readings\":[");
  for (const Reading& reading : readings) {
    if (&reading != &readings.front()) out.push_back(',');
    appendReading(out, reading);
  }
  out.append("]}\n");
}

constexpr ReadingFormat kReadingFormats[] = {
    {"text", "", appendText},
    {"tsv", "typed\tphrase\tinfinitive\tslot\tmood\ttense\tperson\tagreement\tvariety\tmatch\n",
     appendTsv},
    {"json", "", appendJson}};

}  // namespace

Utf8View nameOf(Match match) {
  constexpr Utf8View kNames[] = {"exact", "accents", "slip"};
  return kNames[static_cast<std::size_t>(match)];
}

const ReadingFormat* readingFormatNamed(Utf8View name) {
  const auto* format = std::ranges::find(kReadingFormats, name, &ReadingFormat::name);
  return format == std::end(kReadingFormats) ? nullptr : format;
}

}  // namespace odmiennik::cli
