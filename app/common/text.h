// SPDX-License-Identifier: GPL-3.0-or-later
// Texts between the engine (Windows-1252) and Qt.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "engine/utf8.h"

namespace odmiennik::app {

[[nodiscard]] inline QString fromUtf8(Utf8View utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

[[nodiscard]] inline Utf8Text toUtf8(const QString& text) {
  return Utf8Text(asUtf8(text.toStdString()));
}

// Windows-1252 -> QString; every byte has an image: "\xE9t\xE9" -> "été".
[[nodiscard]] QString fromFrench(std::string_view bytes);

// Whether Windows-1252 has the letter: 'é' and '’' yes, 'ł' no.
[[nodiscard]] bool isFrenchLetter(QChar letter);

// A text as the caption of a window, which shows it as it is: "[*]", the place that Qt keeps for
// the mark of what is not saved, is written twice.
[[nodiscard]] QString captionOf(Utf8View utf8);

// QString -> Windows-1252. Letters that it does not have are left out; the boxes never hold any.
[[nodiscard]] std::string toFrench(const QString& text);

}  // namespace odmiennik::app
