// SPDX-License-Identifier: GPL-3.0-or-later
// An icon that is made when it is first drawn.
#pragma once

#include <QIcon>
#include <functional>

namespace odmiennik::app {

// Qt's bars have icons that are hardly ever seen; reading one takes as long as a line of the menu.
// Example: lateIcon([] { return QIcon(":/arrow.png"); })
[[nodiscard]] QIcon lateIcon(std::function<QIcon()> make);

}  // namespace odmiennik::app
