// SPDX-License-Identifier: GPL-3.0-or-later
// Pages without their mark-up.
#include "app/help/page_text.h"

#include <algorithm>
#include <iterator>

namespace odmiennik::app {
namespace {

constexpr qsizetype kLongestEntity = 10;

struct Entity {
  const char* name;
  char16_t letter;
};
constexpr Entity kEntities[] = {
    {"amp", u'&'}, {"lt", u'<'}, {"gt", u'>'}, {"quot", u'"'}, {"nbsp", u'\u00A0'}};

// The letter of "#233" or "amp"; 0 when it is none.
char32_t letterOf(QStringView name) {
  if (name.startsWith(u'#')) {
    const uint number = name.mid(1).toUInt();
    return number <= QChar::LastValidCodePoint ? number : 0;
  }
  const auto* found =
      std::find_if(std::begin(kEntities), std::end(kEntities),
                   [&](const Entity& entity) { return name == QLatin1String(entity.name); });
  return found == std::end(kEntities) ? 0 : found->letter;
}

bool isInline(QStringView tag) {
  if (tag.startsWith(u'/')) tag = tag.mid(1);
  const auto end = std::find_if(tag.begin(), tag.end(), [](QChar c) { return !c.isLetter(); });
  const QStringView name = tag.left(end - tag.begin());
  for (const char* each : {"b", "i", "a", "span", "em", "strong"})
    if (name.compare(QLatin1String(each), Qt::CaseInsensitive) == 0) return true;
  return false;
}

QStringView between(QStringView text, QStringView before, QStringView behind) {
  const qsizetype start = text.indexOf(before, 0, Qt::CaseInsensitive);
  if (start < 0) return {};
  const QStringView rest = text.mid(start + before.size());
  return rest.left(std::max<qsizetype>(rest.indexOf(behind, 0, Qt::CaseInsensitive), 0));
}

QStringView bodyOf(QStringView markup) {
  constexpr QStringView kHeadEnd = u"</head>";
  const qsizetype head = markup.indexOf(kHeadEnd, 0, Qt::CaseInsensitive);
  return head < 0 ? markup : markup.mid(head + kHeadEnd.size());
}

QString withoutTags(QStringView markup) {
  QString text;
  text.reserve(markup.size());
  for (qsizetype at = 0; at < markup.size();) {
    const qsizetype tag = markup.indexOf(u'<', at);
    text += markup.mid(at, tag < 0 ? -1 : tag - at);
    if (tag < 0) break;
    const qsizetype end = markup.indexOf(u'>', tag);
    if (end < 0) break;
    if (!isInline(markup.mid(tag + 1, end - tag - 1))) text += u' ';
    at = end + 1;
  }
  return text;
}

// Blanks that a page shows as one; a non-breaking one is none of them.
QString withSingleBlanks(const QString& text) {
  QString single;
  single.reserve(text.size());
  bool isBlankWanted = false;
  for (const QChar letter : text) {
    const bool isBlank = letter.isSpace() && letter != QChar::Nbsp;
    if (!isBlank && isBlankWanted && !single.isEmpty()) single += u' ';
    if (!isBlank) single += letter;
    isBlankWanted = isBlank;
  }
  return single;
}

}  // namespace

QString withoutEntities(const QString& text) {
  QString plain;
  plain.reserve(text.size());
  for (qsizetype at = 0; at < text.size();) {
    const qsizetype sign = text.indexOf(u'&', at);
    plain += QStringView(text).mid(at, sign < 0 ? -1 : sign - at);
    if (sign < 0) break;
    const qsizetype end = text.indexOf(u';', sign);
    const bool isShort = end > sign && end - sign <= kLongestEntity;
    const char32_t letter = isShort ? letterOf(QStringView(text).mid(sign + 1, end - sign - 1)) : 0;
    if (letter != 0)
      plain += QString::fromUcs4(&letter, 1);
    else
      plain += u'&';
    at = letter != 0 ? end + 1 : sign + 1;
  }
  return plain;
}

PageText pageText(const QString& markup) {
  const QString title = between(markup, u"<title>", u"</title>").toString();
  return {withoutEntities(title).trimmed(),
          withSingleBlanks(withoutEntities(withoutTags(bodyOf(markup))))};
}

}  // namespace odmiennik::app
