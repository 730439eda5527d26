// SPDX-License-Identifier: GPL-3.0-or-later
// Copying of a conjugation.
#include "app/exporting/copied_conjugation.h"

#include "app/common/text.h"
#include "formats/format.h"

namespace odmiennik::app {
namespace {

QString written(formats::Format& format, const formats::Answer& answer) {
  Utf8Text text;
  format.begin(text);
  format.append(text, answer);
  format.end(text);
  return fromUtf8(text);
}

}  // namespace

std::unique_ptr<QMimeData> copyOf(const formats::Answer& answer) {
  auto copy = std::make_unique<QMimeData>();
  copy->setText(written(*formats::makeTextFormat(), answer));
  copy->setHtml(written(*formats::makeHtmlFormat(), answer));
  return copy;
}

}  // namespace odmiennik::app
