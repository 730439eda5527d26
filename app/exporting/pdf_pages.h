// SPDX-License-Identifier: GPL-3.0-or-later
// Conjugations as A4 pages in a PDF.
#pragma once

#include <QPainter>
#include <QPdfWriter>

#include "formats/answer.h"

class QIODevice;

namespace odmiennik::app {

// Every verb begins on a page of its own and stands on one where it fits, as text that can be
// looked for and copied, in the font that the program carries.
class PdfPages {
 public:
  // `device` is open and outlives it; `title` is the document's.
  PdfPages(QIODevice& device, const QString& title);

  // A verb that was refused has no page.
  void add(const formats::Answer& answer);

  void end() { painter_.end(); }

 private:
  void beginPage();

  QPdfWriter writer_;
  QPainter painter_;
  int pageCount_ = 0;
};

}  // namespace odmiennik::app
