// SPDX-License-Identifier: GPL-3.0-or-later
// The pages of the help.
#include "app/help/help_browser.h"

#include <QApplication>
#include <QFontInfo>
#include <QKeyEvent>
#include <QMimeData>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QWheelEvent>
#include <QtMath>

#include "app/common/announcement.h"
#include "app/common/colours.h"
#include "app/help/folded_text.h"
#include "app/help/help_sheet.h"
#include "app/help/page_colours.h"
#include "app/help/page_picture.h"

namespace odmiennik::app {
namespace {

constexpr qreal kMargin = 14;

// As it would be typed: hyphens and blanks that hold a line together are the page's alone.
QString typedText(QString text) {
  return text.replace(QChar(u'\u2011'), QLatin1Char('-')).replace(QChar::Nbsp, QLatin1Char(' '));
}

bool isOnDark() { return isDark(QApplication::palette()); }

// The sheet with the system's own font, the one that is really used: a style sheet knows no
// stand-ins such as "Sans Serif". The fonts that it names are for other viewers.
QString inFontOf(const QWidget& view, QString sheet) {
  static const QRegularExpression families(QStringLiteral("font-family:[^;}]*"));
  const QString own = QStringLiteral("font-family: '%1'").arg(QFontInfo(view.font()).family());
  return sheet.replace(families, own);
}

}  // namespace

// Lines end between words alone: a form is never broken, a table rather wider than the window.
HelpBrowser::HelpBrowser(const HelpBook& book, QWidget* parent)
    : QTextBrowser(parent), book_(book) {
  setObjectName(QStringLiteral("txtStrona"));
  setAccessibleName(QStringLiteral("Strona pomocy"));
  setOpenExternalLinks(false);
  setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
  setWordWrapMode(QTextOption::WordWrap);
  setPalette(pagePalette(isOnDark()));
  setMinimumSize(320, 240);
  document()->setDocumentMargin(kMargin);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // one that comes lays out the page once more
  connect(this, &QTextBrowser::sourceChanged, this, &HelpBrowser::sayPage);
}

// Every answer holds something, if only an empty text: without one the text view looks for a local
// file of that name.
QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
  const QUrl address = name.isRelative() ? page_.resolved(name) : name;
  if (type == QTextDocument::ImageResource) return picture(address);
  if (type == QTextDocument::StyleSheetResource)
    return inFontOf(*this, sheetAt(sheet(address), zoom_));
  page_ = address;
  widestPicture_ = 0;
  return book_.page(address);
}

// No wider than the view, so that nobody has to scroll a picture from side to side.
QImage HelpBrowser::picture(const QUrl& address) {
  roomOfPictures_ = room();
  const QImage picture = pagePicture(book_.part(address), zoom_, roomOfPictures_);
  widestPicture_ = std::max(widestPicture_, picture.width());
  return picture;
}

// Every paragraph has the margins of the page's body.
int HelpBrowser::room() const {
  const QTextBlockFormat body = document()->begin().blockFormat();
  const qreal margins = 2 * document()->documentMargin() + body.leftMargin() + body.rightMargin();
  return viewport()->width() - qCeil(margins);
}

// The page is read anew where a picture has no longer room, or was fitted into less. Pictures
// further down may be read for the first time while the page is laid out.
void HelpBrowser::resizeEvent(QResizeEvent* event) {
  const int widest = widestPicture_, before = roomOfPictures_;
  QTextBrowser::resizeEvent(event);
  const bool wasFitted = widest > 0 && widest == before;
  if (widest > room() || (wasFitted && room() > before)) readAnew();
}

// Laid out once, when its headings have their sizes: each change would lay out the page anew.
void HelpBrowser::doSetSource(const QUrl& address, QTextDocument::ResourceType type) {
  document()->setLayoutEnabled(false);
  QTextBrowser::doSetSource(address, type);
  takeHeadingSizes(*document());
  document()->setLayoutEnabled(true);
}

QString HelpBrowser::sheet(const QUrl& address) const {
  QByteArray sheet = book_.part(address);
  if (isOnDark()) sheet += '\n' + book_.part(helpAddress(QLatin1String(kDarkSheet)));
  return QString::fromUtf8(sheet);
}

void HelpBrowser::setZoom(int percent) {
  if (percent == zoom_) return;
  zoom_ = percent;
  readAnew();
}

void HelpBrowser::followTheme() {
  const QPalette colours = pagePalette(isOnDark());
  if (colours.color(QPalette::Base) == palette().color(QPalette::Base)) return;
  setPalette(colours);
  readAnew();
}

// Where the caret is not in sight, the first line that is counts as read.
void HelpBrowser::readAnew() {
  if (source().isEmpty()) return;
  const int caret = textCursor().position();
  const int top = cursorForPosition({0, 0}).position();
  const QString marked = marked_;
  reload();
  markAll(marked);
  QTextCursor place(document());
  place.setPosition(std::min(top, document()->characterCount() - 1));
  verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(place).top());
  place.setPosition(std::min(caret, document()->characterCount() - 1));
  const int scrolled = verticalScrollBar()->value();
  setTextCursor(place);
  verticalScrollBar()->setValue(scrolled);
}

void HelpBrowser::mark(const QString& typed) {
  markAll(typed);
  if (extraSelections().isEmpty()) return;
  QTextCursor first = extraSelections().front().cursor;
  first.setPosition(first.selectionStart());
  setTextCursor(first);
}

void HelpBrowser::markAll(const QString& typed) {
  marked_ = typed;
  const QStringList words = searchedWords(typed);
  const FoldedText text = words.isEmpty() ? FoldedText() : folded(document()->toRawText());
  QList<QTextEdit::ExtraSelection> marks;
  for (const TextHit& hit : hitsOf(text, words)) {
    QTextCursor place(document());
    place.setPosition(hit.place);
    place.setPosition(hit.place + hit.length, QTextCursor::KeepAnchor);
    marks.push_back({place, markFormat(isOnDark())});
  }
  setExtraSelections(marks);
}

QString HelpBrowser::heading() const { return document()->begin().text(); }

void HelpBrowser::sayPage() {
  markAll({});
  setAccessibleDescription(typedText(heading()));
  announce(accessibleDescription());
}

// The signal "highlighted" does not come when Tab selects a link: the view has noted the link
// already.
bool HelpBrowser::focusNextPrevChild(bool next) {
  const bool hasMoved = QTextBrowser::focusNextPrevChild(next);
  const QTextCursor link = textCursor();
  if (hasFocus() && link.hasSelection() && link.charFormat().isAnchor())
    announceAnswer(QStringLiteral("Odsyłacz: %1").arg(typedText(link.selectedText())));
  return hasMoved;
}

// The caret stands in a link as well when it was not Tab that led there.
void HelpBrowser::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const QString link = anchorAt(cursorRect().center());
  if (isEnter && !textCursor().hasSelection() && !link.isEmpty())
    setSource(source().resolved(QUrl(link)));
  else
    QTextBrowser::keyPressEvent(event);
}

void HelpBrowser::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) return QTextBrowser::wheelEvent(event);
  const int turned = event->angleDelta().y();
  if (turned != 0) emit zoomTurned(turned > 0 ? 1 : -1);
  event->accept();
}

QMimeData* HelpBrowser::createMimeDataFromSelection() const {
  const QTextDocumentFragment selected = textCursor().selection();
  auto* copied = new QMimeData;
  copied->setText(typedText(selected.toPlainText()));
  copied->setHtml(typedText(selected.toHtml()));
  return copied;
}

}  // namespace odmiennik::app
