// SPDX-License-Identifier: GPL-3.0-or-later
// Setting of pages.
#include "app/exporting/pdf_pages.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QHash>
#include <algorithm>

#include "app/common/look.h"
#include "app/exporting/sheet_measures.h"
#include "app/exporting/verb_sheet.h"

namespace odmiennik::app {
namespace {

constexpr int kDotsPerInch = 1200;
constexpr double kDotsPerPoint = kDotsPerInch / 72.0;
constexpr int kNatural = QFont::Unstretched;
constexpr QMarginsF kMargins(16, 13, 16, 11);  // millimetres

const QColor kBlue(0x1F, 0x3D, 0x7A);
const QColor kQuiet(0x5A, 0x64, 0x70);
const QColor kGround(0xEE, 0xF1, 0xF6);

QFont fontOf(double points, bool isBold = false) {
  QFont font = programFont();
  font.setPixelSize(qRound(points * kDotsPerPoint));
  font.setStretch(kNatural);
  font.setBold(isBold);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

// Points a point of the letters.
double widestOf(const SheetText& text) {
  constexpr double kMeasured = 10;
  const QFontMetricsF metrics(fontOf(kMeasured));
  double widest = 0;
  for (const SheetTable& table : text.tables)
    for (const auto& row : table.rows)
      for (const SheetPhrase& phrase : row)
        widest = std::max(widest, metrics.horizontalAdvance(phrase.subject + phrase.form));
  return widest / kDotsPerPoint / kMeasured;
}

// Sets a verb from the top of a page on; lengths are points.
class SheetSetter {
 public:
  SheetSetter(QPainter& painter, double width, const Sheet& sheet)
      : painter_(painter),
        width_(width),
        columnWidth_(columnWidth(width, sheet.columnCount)),
        size_(sheet.size),
        font_(fontOf(sheet.size)),
        isNarrow_(sheet.isNarrow) {}

  void setHead(const SheetText& text) {
    setText(text.infinitive, 0, kTitlePoints * kBaseline, fontOf(kTitlePoints, true), kBlue);
    top_ += kTitleHeight;
    setText(text.facts, 0, kFactsPoints * kBaseline, fontOf(kFactsPoints), kQuiet);
    top_ += kFactsHeight;
  }

  void setTable(const SheetTable& table) {
    if (!table.mood.isEmpty()) setMood(table.mood);
    if (table.rows.empty()) return;
    for (int column = 0; column < static_cast<int>(table.tenses.size()); ++column)
      setHeading(table.tenses[column], column);
    top_ += kHeading * size_;
    for (const auto& row : table.rows) setRow(row);
    top_ += kBehindTable * size_;
  }

  [[nodiscard]] double top() const { return top_; }
  void beginPage() { top_ = 0; }

 private:
  [[nodiscard]] static double dots(double points) { return points * kDotsPerPoint; }
  [[nodiscard]] double leftOf(int column) const { return column * (columnWidth_ + kColumnGap); }

  // `baseline` is counted from the top of what is being set.
  void setText(const QString& text, double left, double baseline, const QFont& font,
               const QColor& colour) {
    painter_.setFont(font);
    painter_.setPen(colour);
    painter_.drawText(QPointF(dots(left), dots(top_ + baseline)), text);
  }

  void setMood(const QString& mood) {
    constexpr double kRule = kMood - 0.3;
    const double size = size_ * kMoodSize;
    setText(mood, 0, size * kBaseline, fontOf(size, true), kBlue);
    const double rule = dots(top_ + size_ * kRule);
    painter_.setPen(QPen(kBlue, dots(kHairline)));
    painter_.drawLine(QPointF(0, rule), QPointF(dots(width_), rule));
    top_ += kMood * size_;
  }

  void setHeading(const QString& tense, int column) {
    constexpr double kGroundHeight = kHeading - 0.1;
    painter_.fillRect(
        QRectF(dots(leftOf(column)), dots(top_), dots(columnWidth_), dots(kGroundHeight * size_)),
        kGround);
    setText(tense, leftOf(column) + kIndent, size_ * kBaseline, fontOf(size_, true), Qt::black);
  }

  void setRow(const std::vector<SheetPhrase>& row) {
    for (int column = 0; column < static_cast<int>(row.size()); ++column)
      setPhrase(row[static_cast<std::size_t>(column)], column);
    top_ += kLine * size_;
  }

  void setPhrase(const SheetPhrase& phrase, int column) {
    if (phrase.form.isEmpty()) return;
    const QFont font = fontFor(phrase);
    const double left = leftOf(column) + kIndent;
    if (!phrase.subject.isEmpty()) setText(phrase.subject, left, size_ * kBaseline, font, kQuiet);
    const double behind = widthOf(phrase.subject) * font.stretch() / kNatural;
    setText(phrase.form, left + behind, size_ * kBaseline, font, Qt::black);
  }

  // At its natural width, in points; measured once, since few subjects come often.
  [[nodiscard]] double widthOf(const QString& subject) {
    if (const auto known = widths_.constFind(subject); known != widths_.constEnd()) return *known;
    return *widths_.insert(subject,
                           QFontMetricsF(font_).horizontalAdvance(subject) / kDotsPerPoint);
  }

  // A phrase that is too wide for its column is set tighter.
  [[nodiscard]] QFont fontFor(const SheetPhrase& phrase) const {
    if (!isNarrow_) return font_;
    QFont font = font_;
    const double room = dots(columnWidth_ - kIndent);
    const double width = QFontMetricsF(font).horizontalAdvance(phrase.subject + phrase.form);
    if (width > room) font.setStretch(qMax(1, static_cast<int>(kNatural * room / width)));
    return font;
  }

  QPainter& painter_;
  double width_;
  double columnWidth_;
  double size_;
  QFont font_;
  bool isNarrow_;
  QHash<QString, double> widths_;
  double top_ = 0;
};

}  // namespace

PdfPages::PdfPages(QIODevice& device, const QString& title) : writer_(&device) {
  writer_.setPageSize(QPageSize(QPageSize::A4));
  writer_.setPageMargins(kMargins, QPageLayout::Millimeter);
  writer_.setResolution(kDotsPerInch);
  writer_.setTitle(title);
  writer_.setCreator(QCoreApplication::applicationName() + u' ' +
                     QCoreApplication::applicationVersion());
  painter_.begin(&writer_);
}

// The first page is there from the beginning.
void PdfPages::beginPage() {
  if (++pageCount_ > 1) writer_.newPage();
  const double bottom = writer_.height();
  painter_.setFont(fontOf(kFooterPoints));
  painter_.setPen(kQuiet);
  painter_.drawText(QPointF(0, bottom), QCoreApplication::applicationName());
  if (pageCount_ == 1) return;
  const QRectF foot(0, bottom - kFooterHeight * kDotsPerPoint, writer_.width(),
                    kFooterHeight * kDotsPerPoint);
  painter_.drawText(foot, Qt::AlignRight | Qt::AlignBottom, QString::number(pageCount_));
}

void PdfPages::add(const formats::Answer& answer) {
  if (answer.isRefused) return;
  const QSizeF page(writer_.width() / kDotsPerPoint,
                    writer_.height() / kDotsPerPoint - kFooterHeight);
  const Sheet sheet = sheetOf(answer, widestOf, page);
  beginPage();
  SheetSetter setter(painter_, page.width(), sheet);
  setter.setHead(sheet.text);
  for (const SheetTable& table : sheet.text.tables) {
    if (setter.top() + heightOf(table, sheet.size) > page.height()) {
      beginPage();
      setter.beginPage();
    }
    setter.setTable(table);
  }
}

}  // namespace odmiennik::app
