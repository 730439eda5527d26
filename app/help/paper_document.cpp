// SPDX-License-Identifier: GPL-3.0-or-later
// Pages laid out for paper.
#include "app/help/paper_document.h"

#include <QAbstractTextDocumentLayout>
#include <QTextOption>

#include "app/common/look.h"
#include "app/help/help_sheet.h"
#include "app/help/page_picture.h"

namespace odmiennik::app {
namespace {

constexpr double kPoints = 11;

QFont paperFont() {
  QFont font = programFont();
  font.setPointSizeF(kPoints);
  return font;
}

}  // namespace

PaperDocument::PaperDocument(const HelpBook& book, const QUrl& address, QPaintDevice& device,
                             double width)
    : book_(book) {
  documentLayout()->setPaintDevice(&device);
  setDefaultFont(paperFont());
  setDocumentMargin(0);
  QTextOption lines = defaultTextOption();
  lines.setWrapMode(QTextOption::WordWrap);
  setDefaultTextOption(lines);
  setBaseUrl(address);
  setHtml(book_.page(address));
  takeHeadingSizes(*this);
  setTextWidth(width);
}

// Something is answered in any case, or a local file would be looked for.
QVariant PaperDocument::loadResource(int type, const QUrl& name) {
  if (type == QTextDocument::ImageResource) return pagePicture(book_.part(name), 100);
  if (type != QTextDocument::StyleSheetResource) return QByteArray("\n");
  const QByteArray paper = book_.part(helpAddress(QLatin1String(kPaperSheet)));
  return QString::fromUtf8(book_.part(name) + '\n' + paper + '\n');
}

}  // namespace odmiennik::app
