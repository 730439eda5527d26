// SPDX-License-Identifier: GPL-3.0-or-later
// Reading of a contents file.
#include "app/help/help_contents.h"

#include <QRegularExpression>
#include <QUrl>
#include <algorithm>

#include "app/help/page_text.h"

namespace odmiennik::app {
namespace {

constexpr int kDeepest = 8;
constexpr std::size_t kMostEntries = 1000;
constexpr qsizetype kLongestText = 200;

// The letters of the bytes from 0x80; a byte that has none shows as the mark of a lost letter.
constexpr char16_t kUpperHalf[] =
    u"€\uFFFD‚\uFFFD„…†‡\uFFFD‰Š‹ŚŤŽŹ\uFFFD‘’“”•–—\uFFFD™š›śťžź"
    u"\u00A0ˇ˘Ł¤Ą¦§¨©Ş«¬\u00AD®Ż°±˛ł´µ¶·¸ąş»Ľ˝ľż"
    u"ŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢßŕáâăäĺćçčéęëěíîďđńňóôőö÷řůúűüýţ˙";
static_assert(std::size(kUpperHalf) == 128 + 1);

QString attribute(const QString& tag, const char* name) {
  const QRegularExpression pattern(QLatin1String(name) + QLatin1String("\\s*=\\s*\"([^\"]*)\""),
                                   QRegularExpression::CaseInsensitiveOption);
  return withoutEntities(pattern.match(tag).captured(1).left(kLongestText));
}

// A page is named like a link, with bytes of UTF-8 after percent signs: "Pass%C3%A9.htm".
QString decoded(const QString& link) { return QUrl::fromPercentEncoding(link.toUtf8()); }

// Follows the tags of a contents file one by one.
class ContentsReader {
 public:
  std::vector<HelpContentsEntry> entries;

  void take(const QString& tag) {
    const auto is = [&tag](const char* name) {
      return tag.startsWith(QLatin1String(name), Qt::CaseInsensitive);
    };
    if (is("<ul")) level_ = std::min(level_ + 1, kDeepest);
    if (is("</ul")) level_ = std::max(level_ - 1, 0);
    if (is("<object")) {
      title_.clear();
      page_.clear();
    }
    if (is("<param")) takeParameter(attribute(tag, "name").toLower(), attribute(tag, "value"));
    if (is("</object") && !title_.isEmpty() && level_ > 0)
      entries.push_back({level_, title_, page_});
  }

 private:
  void takeParameter(const QString& name, QString value) {
    if (name == QLatin1String("name")) title_ = value;
    if (name == QLatin1String("local"))
      page_ = QLatin1Char('/') + decoded(value.replace(QLatin1Char('\\'), QLatin1Char('/')));
  }

  int level_ = 0;
  QString title_;
  QString page_;
};

}  // namespace

QString fromWindows1250(const QByteArray& bytes) {
  QString text;
  text.reserve(bytes.size());
  for (const char byte : bytes) {
    const auto code = static_cast<unsigned char>(byte);
    text += code < 0x80 ? QChar(code) : QChar(kUpperHalf[code - 0x80]);
  }
  return text;
}

std::vector<HelpContentsEntry> readHelpContents(const QByteArray& file) {
  static const QRegularExpression tag(QStringLiteral("<[^<>]*>"));
  const QString text = fromWindows1250(file);
  ContentsReader reader;
  for (auto tags = tag.globalMatch(text); tags.hasNext() && reader.entries.size() < kMostEntries;)
    reader.take(tags.next().captured());
  return std::move(reader.entries);
}

}  // namespace odmiennik::app
