// SPDX-License-Identifier: GPL-3.0-or-later
// The shapes of explanations.
#include <algorithm>

#include "cli/explaining.h"
#include "cli/reading_formats.h"
#include "dictionary/printable.h"
#include "engine/slots.h"
#include "engine/windows1252.h"
#include "formats/json_text.h"
#include "formats/page.h"
#include "formats/printable.h"

namespace odmiennik::cli {
namespace {

using explainer::Explanation;
using explainer::PhraseId;
using formats::appendJsonFrench;
using formats::appendJsonKey;
using formats::appendJsonTexts;
using formats::appendJsonUtf8;
using formats::appendPrintable;
using formats::letterCount;
using formats::Page;

constexpr std::size_t kWidth = 100;
constexpr std::size_t kVerb = 2, kForm = 4, kTense = 4, kTold = 34;

Utf8View headingText(PhraseId heading) { return explainer::rowOf(heading).text; }

// Words in lines that end before the page does; what is broken goes on at the column.
void addWrapped(Page& page, Utf8View text, std::size_t column) {
  while (!text.empty()) {
    const auto end = text.find(' ');
    const Utf8View word = text.substr(0, end);
    const bool isFirst = page.column() <= column;
    if (!isFirst && page.column() + 1 + letterCount(word) > kWidth) page.endLine();
    page.moveTo(page.column() <= column ? column : page.column() + 1);
    page.addUtf8(word);
    text = end == Utf8View::npos ? Utf8View() : text.substr(end + 1);
  }
  page.endLine();
}

// "nous mangeons: temat mang-, e przed o, końcówka -ons"
Utf8Text told(const Explanation& form, Utf8View source) {
  Utf8Text text = dictionary::printable(engine::toUtf8(form.phrase));
  if (!text.empty()) text.append(": ");
  if (!source.empty()) text.append(source).append("; ");
  text.append(dictionary::printable(explainer::sentenceOf(form.remarks)));
  return text + ".";
}

void appendTold(Page& page, const Explanation& form, Utf8View source, std::size_t column) {
  page.moveTo(column);
  addWrapped(page, told(form, source), column);
  const Utf8Text norm = explainer::normSentenceOf(form);
  if (norm.empty()) return;
  page.moveTo(column);
  addWrapped(page, dictionary::printable(norm) + ".", column);
}

void appendFact(Page& page, PhraseId heading, Utf8View value) {
  page.moveTo(kTense);
  page.addUtf8(headingText(heading));
  page.moveTo(kTold);
  addWrapped(page, value, kTold);
}

Utf8Text tenseHeading(int slot) {
  const engine::Tense& tense = engine::tenseOf(slot);
  return Utf8Text(tense.mood) + " " + Utf8Text(tense.name);
}

void appendForms(Page& page, const ExplainedVerb& verb) {
  Utf8Text last;
  for (const Explanation& form : verb.forms) {
    const Utf8Text heading = tenseHeading(form.slot);
    page.moveTo(kTense);
    if (heading != last) page.addUtf8(heading);
    appendTold(page, form, {}, kTold);
    last = heading;
  }
}

void appendWhole(Page& page, const ExplainedVerb& verb) {
  appendFact(page, PhraseId::headSource, verb.source);
  const auto participle =
      std::ranges::find(verb.forms, engine::slot::kPastParticiple, &Explanation::slot);
  const bool hasParticiple = participle != verb.forms.end() && !participle->phrase.empty();
  if (hasParticiple) appendFact(page, PhraseId::headParticiple, engine::toUtf8(participle->phrase));
  appendFact(page, PhraseId::headAuxiliary, verb.auxiliary);
  appendForms(page, verb);
}

void appendText(Utf8Text& out, Utf8View typed, const ExplainedVerbs& verbs) {
  if (verbs.empty()) return;
  Page page(out, false);
  page.addUtf8(dictionary::printable(typed));
  page.endLine();
  finder::Match match = finder::Match::exact;
  for (const ExplainedVerb& verb : verbs) {
    page.moveTo(kVerb);
    if (verb.match != match) {
      page.addUtf8(finder::headingOf(match = verb.match));
      page.endLine();
      page.moveTo(kVerb);
    }
    page.addFrench(verb.infinitive);
    if (!verb.place.empty()) page.addUtf8(", " + verb.place);
    page.endLine();
    if (verb.isWhole) appendWhole(page, verb);
    if (verb.isWhole) continue;
    for (const Explanation& form : verb.forms) appendTold(page, form, verb.source, kForm);
  }
}

void appendTsv(Utf8Text& out, Utf8View typed, const ExplainedVerbs& verbs) {
  for (const ExplainedVerb& verb : verbs)
    for (const Explanation& form : verb.forms) {
      const engine::Tense& tense = engine::tenseOf(form.slot);
      dictionary::appendPrintable(out, typed);
      out.push_back('\t');
      appendPrintable(out, form.phrase);
      out.push_back('\t');
      appendPrintable(out, verb.infinitive);
      out.append("\t").append(decimal(form.slot));
      for (const Utf8View field : {tense.mood, tense.name, engine::personOf(form.slot),
                                   Utf8View(verb.source), nameOf(verb.match)})
        out.append("\t").append(field);
      for (const Utf8Text& sentence :
           {explainer::sentenceOf(form.remarks), explainer::normSentenceOf(form)}) {
        out.push_back('\t');
        dictionary::appendPrintable(out, sentence);
      }
      out.push_back('\n');
    }
}

void appendRemarks(Utf8Text& out, const explainer::Remarks& remarks) {
  out.append("[");
  for (const explainer::Remark& remark : remarks) {
    if (&remark != &remarks.front()) out.push_back(',');
    appendJsonUtf8(out, remark.text);
  }
  out.append("]");
}

void appendNorm(Utf8Text& out, const Explanation& form) {
  appendJsonKey(out, "norm");
  if (!form.isDeparting) return void(out.append("null"));
  out.append("{\"phrase\":");
  appendJsonFrench(out, form.normPhrase);
  appendJsonKey(out, "remarks");
  appendRemarks(out, form.normRemarks);
  out.append("}");
}

void appendForm(Utf8Text& out, const Explanation& form) {
  const engine::Tense& tense = engine::tenseOf(form.slot);
  out.append("{\"slot\":").append(decimal(form.slot));
  appendJsonTexts(
      out, {{"mood", tense.mood}, {"tense", tense.name}, {"person", engine::personOf(form.slot)}});
  appendJsonKey(out, "phrase");
  appendJsonFrench(out, form.phrase);
  appendJsonKey(out, "remarks");
  appendRemarks(out, form.remarks);
  appendNorm(out, form);
  out.append("}");
}

void appendVerb(Utf8Text& out, const ExplainedVerb& verb) {
  out.append("{\"infinitive\":");
  appendJsonFrench(out, verb.infinitive);
  appendJsonTexts(
      out, {{"source", verb.source}, {"auxiliary", verb.auxiliary}, {"match", nameOf(verb.match)}});
  appendJsonKey(out, "whole");
  out.append(verb.isWhole ? "true" : "false");
  appendJsonKey(out, "forms");
  out.append("[");
  for (const Explanation& form : verb.forms) {
    if (&form != &verb.forms.front()) out.push_back(',');
    appendForm(out, form);
  }
  out.append("]}");
}

// One object a question, in their order.
void appendJson(Utf8Text& out, Utf8View typed, const ExplainedVerbs& verbs) {
  out.append("{\"typed\":");
  appendJsonUtf8(out, typed);
  out.append(",\"verbs\":[");
  for (const ExplainedVerb& verb : verbs) {
    if (&verb != &verbs.front()) out.push_back(',');
    appendVerb(out, verb);
  }
  out.append("]}\n");
}

constexpr ExplanationFormat kExplanationFormats[] = {
    {"text", "", appendText},
    {"tsv",
     "typed\tphrase\tinfinitive\tslot\tmood\ttense\tperson\tsource\tmatch\texplanation\tnorm\n",
     appendTsv},
    {"json", "", appendJson}};

}  // namespace

const ExplanationFormat* explanationFormatNamed(Utf8View name) {
  const auto* format = std::ranges::find(kExplanationFormats, name, &ExplanationFormat::name);
  return format == std::end(kExplanationFormats) ? nullptr : format;
}

}  // namespace odmiennik::cli
