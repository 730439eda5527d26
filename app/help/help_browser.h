// SPDX-License-Identifier: GPL-3.0-or-later
// Shows the pages of the help file, and nothing from anywhere else.
#pragma once

#include <QTextBrowser>

#include "app/help/help_book.h"
#include "app/help/help_zoom.h"

namespace odmiennik::app {

// A page has a caret: it is read line by line, text is selected by keyboard, and Tab leads from
// link to link. Its colours are those of the program's theme. Pictures are those of the help file;
// local files and the network are never read, whatever a page asks for.
class HelpBrowser final : public QTextBrowser {
  Q_OBJECT

 public:
  // `book` outlives the browser.
  HelpBrowser(const HelpBook& book, QWidget* parent);

  QVariant loadResource(int type, const QUrl& name) override;

  // Shows the page in another size, 100 being its own; the place that is read stays in sight.
  void setZoom(int percent);
  [[nodiscard]] int zoom() const { return zoom_; }

  // Reads the page anew in the colours of the program's theme; the place that is read stays.
  void followTheme();

  // Marks the words wherever they stand on the page, and goes to the first; until another page is
  // shown.
  void mark(const QString& typed);

  // The heading of the page that is shown.
  [[nodiscard]] QString heading() const;

 signals:
  // The wheel was turned with Ctrl: 1 for larger, -1 for smaller.
  void zoomTurned(int direction);

 protected:
  void doSetSource(const QUrl& address, QTextDocument::ResourceType type) override;
  bool focusNextPrevChild(bool next) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;

 private:
  [[nodiscard]] QString sheet(const QUrl& address) const;
  [[nodiscard]] QImage picture(const QUrl& address);
  [[nodiscard]] int room() const;
  void readAnew();
  void markAll(const QString& typed);
  void sayPage();

  const HelpBook& book_;
  QUrl page_;  // to which the addresses inside a page are relative
  // Of the pictures that the page shows the widest, and the room when it was read.
  int widestPicture_ = 0;
  int roomOfPictures_ = 0;
  int zoom_ = kNormalZoom;
  QString marked_;
};

}  // namespace odmiennik::app
