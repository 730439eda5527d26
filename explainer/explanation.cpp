// SPDX-License-Identifier: GPL-3.0-or-later
// Remarks put into words.
#include "explainer/explanation.h"

#include "engine/windows1252.h"

namespace odmiennik::explainer {
namespace {

void fill(Utf8Text& text, int place, Utf8View by) {
  const Utf8Text mark = "{" + decimal(place) + "}";
  const auto at = text.find(mark);
  if (at != Utf8Text::npos) text.replace(at, mark.size(), by);
}

// Between two remarks: what is told of one of several forms stands behind a colon.
Utf8View joint(const Remark& before, const Remark& next) {
  const PhrasePart part = rowOf(before.phrase).part;
  if (part == PhrasePart::variant) return ": ";
  return part == rowOf(next.phrase).part ? ", " : "; ";
}

}  // namespace

void add(Remarks& remarks, PhraseId phrase, std::initializer_list<std::string_view> french) {
  Utf8Text text(rowOf(phrase).text);
  int place = 0;
  for (const std::string_view one : french) fill(text, ++place, engine::toUtf8(one));
  remarks.push_back({phrase, std::move(text)});
}

void addNamed(Remarks& remarks, PhraseId phrase, std::initializer_list<Utf8View> texts) {
  Utf8Text text(rowOf(phrase).text);
  int place = 0;
  for (const Utf8View one : texts) fill(text, ++place, one);
  remarks.push_back({phrase, std::move(text)});
}

Utf8Text sentenceOf(const Remarks& remarks) {
  Utf8Text sentence;
  for (std::size_t i = 0; i < remarks.size(); ++i) {
    if (i > 0) sentence.append(joint(remarks[i - 1], remarks[i]));
    sentence.append(remarks[i].text);
  }
  return sentence;
}

std::vector<Utf8Text> linesOf(const Remarks& remarks) {
  std::vector<Utf8Text> lines;
  for (std::size_t i = 0; i < remarks.size(); ++i) {
    const Utf8View between = i == 0 ? "; " : joint(remarks[i - 1], remarks[i]);
    if (between == "; ")
      lines.emplace_back();
    else
      lines.back().append(between);
    lines.back().append(remarks[i].text);
  }
  return lines;
}

Utf8Text normSentenceOf(const Explanation& explanation) {
  if (!explanation.isDeparting) return {};
  Remarks head;
  if (explanation.normPhrase.empty()) {
    add(head, PhraseId::normLacks);
    return head.front().text;
  }
  add(head, PhraseId::norm, {explanation.normPhrase});
  return head.front().text + ": " + sentenceOf(explanation.normRemarks);
}

}  // namespace odmiennik::explainer
