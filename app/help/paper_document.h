// SPDX-License-Identifier: GPL-3.0-or-later
// A page of the help as it is laid out for paper.
#pragma once

#include <QTextDocument>

#include "app/help/help_book.h"

namespace odmiennik::app {

// Dark on white in every theme; sizes are points of the device it is laid out for.
class PaperDocument final : public QTextDocument {
  Q_OBJECT

 public:
  // `book` and `device` outlive the document; `width` in the device's dots.
  PaperDocument(const HelpBook& book, const QUrl& address, QPaintDevice& device, double width);

 protected:
  QVariant loadResource(int type, const QUrl& name) override;

 private:
  const HelpBook& book_;
};

}  // namespace odmiennik::app
