// SPDX-License-Identifier: GPL-3.0-or-later
// Windows-1252 and Qt's strings.
#include "app/common/text.h"

#include "engine/windows1252.h"

namespace odmiennik::app {

QString fromFrench(std::string_view bytes) {
  QString text(static_cast<qsizetype>(bytes.size()), Qt::Uninitialized);
  QChar* letter = text.data();
  for (const char byte : bytes)
    *letter++ =
        QChar(static_cast<char16_t>(engine::kCodePointOfByte[static_cast<unsigned char>(byte)]));
  return text;
}

bool isFrenchLetter(QChar letter) { return engine::byteOfCodePoint(letter.unicode()).has_value(); }

QString captionOf(Utf8View utf8) {
  const QString mark = QStringLiteral("[*]");
  return fromUtf8(utf8).replace(mark, mark + mark);
}

std::string toFrench(const QString& text) {
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(text.size()));
  for (const QChar letter : text)
    if (const auto byte = engine::byteOfCodePoint(letter.unicode()))
      bytes.push_back(static_cast<char>(*byte));
  return bytes;
}

}  // namespace odmiennik::app
