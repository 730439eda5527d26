// SPDX-License-Identifier: GPL-3.0-or-later
// Style sheets made larger and smaller.
#include "app/help/help_sheet.h"

#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <vector>

namespace odmiennik::app {
namespace {

void takeSize(const QTextFragment& part, QTextDocument& document) {
  QTextCharFormat format = part.charFormat();
  format.clearProperty(QTextFormat::FontSizeAdjustment);
  QTextCursor place(&document);
  place.setPosition(part.position());
  place.setPosition(part.position() + part.length(), QTextCursor::KeepAnchor);
  place.setCharFormat(format);
}

std::vector<QTextFragment> partsOf(const QTextBlock& block) {
  std::vector<QTextFragment> parts;
  for (auto part = block.begin(); !part.atEnd(); ++part) parts.push_back(part.fragment());
  return parts;
}

}  // namespace

QString sheetAt(const QString& sheet, int percent) {
  static const QRegularExpression size(QStringLiteral("(\\d+(?:\\.\\d+)?)pt"));
  constexpr double kWhole = 100;
  QString scaled;
  qsizetype behind = 0;
  for (auto sizes = size.globalMatch(sheet); sizes.hasNext();) {
    const QRegularExpressionMatch match = sizes.next();
    scaled += QStringView(sheet).mid(behind, match.capturedStart() - behind);
    scaled += QString::number(match.captured(1).toDouble() * percent / kWhole, 'f', 2);
    scaled += QLatin1String("pt");
    behind = match.capturedEnd();
  }
  scaled += QStringView(sheet).mid(behind);
  return scaled;
}

void takeHeadingSizes(QTextDocument& document) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
    if (block.blockFormat().headingLevel() > 0)
      for (const QTextFragment& part : partsOf(block)) takeSize(part, document);
}

}  // namespace odmiennik::app
