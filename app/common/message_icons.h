// SPDX-License-Identifier: GPL-3.0-or-later
// The icons of message boxes.
#pragma once

#include <QIcon>
#include <QPalette>
#include <QStyle>

namespace odmiennik::app {

// The icon of a message box in the colours of the window's design for `palette`, drawn anew in
// every size; a null icon for any other picture of the style. They stand in
// data/icon/message_icons.txt.
[[nodiscard]] QIcon messageIcon(QStyle::StandardPixmap picture, const QPalette& palette);

}  // namespace odmiennik::app
