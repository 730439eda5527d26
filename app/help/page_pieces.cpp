// SPDX-License-Identifier: GPL-3.0-or-later
// Lines and rows of a document.
#include "app/help/page_pieces.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextFrame>
#include <QTextLayout>
#include <QTextTable>
#include <algorithm>

namespace odmiennik::app {
namespace {

constexpr int kFewRows = 9;

class PieceCollector {
 public:
  explicit PieceCollector(const QTextDocument& document) : layout_(*document.documentLayout()) {
    for (auto part = document.rootFrame()->begin(); !part.atEnd(); ++part)
      if (const auto* table = qobject_cast<const QTextTable*>(part.currentFrame()))
        addTable(*table);
      else if (part.currentBlock().isValid())
        addBlock(part.currentBlock());
  }

  std::vector<TextPiece> pieces;

 private:
  void addBlock(const QTextBlock& block) {
    const QRectF place = layout_.blockBoundingRect(block);
    const QTextLayout& lines = *block.layout();
    const bool isHeading = block.blockFormat().headingLevel() > 0;
    const bool announces = block.text().trimmed().endsWith(QLatin1Char(':'));
    for (int i = 0; i < lines.lineCount(); ++i) {
      const QRectF line = lines.lineAt(i).rect().translated(0, place.top());
      const bool isLast = i == lines.lineCount() - 1;
      const bool isTied = !isLast && (i == 0 || i == lines.lineCount() - 2);
      pieces.push_back(
          {{line.top(), line.bottom()}, isHeading || isTied || (isLast && announces), {}});
    }
  }

  // Rows meet in the middle between their texts.
  void addTable(const QTextTable& table) {
    std::vector<Strip> rows;
    for (int row = 0; row < table.rows(); ++row) rows.push_back(textOfRow(table, row));
    const double edge = rows.size() < 2 ? table.format().cellPadding()
                                        : std::max((rows[1].top - rows[0].bottom) / 2, 0.0);
    for (Strip& row : rows) row = {row.top - edge, row.bottom + edge};
    const bool hasHeading = rows.size() > 1 && isHeading(table);
    for (std::size_t row = 0; row < rows.size(); ++row) {
      const bool isLast = row + 1 == rows.size();
      const bool isTied = (row == 0 && hasHeading) || rows.size() <= kFewRows;
      pieces.push_back({rows[row], isTied && !isLast, row > 0 && hasHeading ? rows[0] : Strip{}});
    }
  }

  // Heads stand on a ground of their own.
  static bool isHeading(const QTextTable& table) {
    return table.cellAt(0, 0).format().background().style() != Qt::NoBrush;
  }

  [[nodiscard]] Strip textOfRow(const QTextTable& table, int row) const {
    QRectF text;
    for (int column = 0; column < table.columns(); ++column) {
      const QTextTableCell cell = table.cellAt(row, column);
      if (cell.row() != row) continue;
      for (auto part = cell.begin(); !part.atEnd(); ++part)
        text |= layout_.blockBoundingRect(part.currentBlock());
    }
    return {text.top(), text.bottom()};
  }

  const QAbstractTextDocumentLayout& layout_;
};

}  // namespace

std::vector<TextPiece> piecesOf(const QTextDocument& document) {
  return std::move(PieceCollector(document).pieces);
}

}  // namespace odmiennik::app
