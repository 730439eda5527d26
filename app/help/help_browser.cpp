// The pages of the help.
#include "app/help/help_browser.h"

#include <QImage>

namespace odmiennik::app {
namespace {

constexpr qreal kMargin = 14;

QPalette paperPalette() {
  QPalette palette(QColor(0xF0, 0xF0, 0xF0));
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Text, QColor(0x20, 0x20, 0x20));
  palette.setColor(QPalette::Link, QColor(0x1A, 0x56, 0xA8));
  palette.setColor(QPalette::LinkVisited, QColor(0x1A, 0x56, 0xA8));
  palette.setColor(QPalette::Highlight, QColor(0x1F, 0x3D, 0x7A));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  return palette;
}

// A transparent point: where nothing is given, the text view would read a local file itself.
QImage noPicture() {
  QImage picture(1, 1, QImage::Format_ARGB32);
  picture.fill(Qt::transparent);
  return picture;
}

}  // namespace

HelpBrowser::HelpBrowser(const HelpBook& book, QWidget* parent)
    : QTextBrowser(parent), book_(book) {
  setObjectName(QStringLiteral("txtStrona"));
  setAccessibleName(QStringLiteral("Strona pomocy"));
  setOpenExternalLinks(false);
  setPalette(paperPalette());
  setMinimumSize(320, 240);
  document()->setDocumentMargin(kMargin);
}

// Every answer holds something, if only an empty text: without one the text view looks for a local
// file of that name.
QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
  if (type == QTextDocument::ImageResource) return noPicture();
  const QUrl address = name.isRelative() ? page_.resolved(name) : name;
  if (type == QTextDocument::StyleSheetResource)
    return QString::fromUtf8(book_.part(address)) + QLatin1Char('\n');
  page_ = address;
  return book_.page(address);
}

}  // namespace odmiennik::app
