// SPDX-License-Identifier: GPL-3.0-or-later
// The pictures of the help's pages.
#pragma once

#include <QByteArray>
#include <QImage>
#include <optional>

namespace odmiennik::app {

// A picture (PNG) as it stands on a page that is shown in so many percent of its size, and no wider
// than `widest` points where that is given. What is no PNG, is damaged, or larger than a page
// becomes a transparent point: nothing is seen, and where nothing is given the text view would look
// for a local file. Example: pagePicture(book.part(helpAddress("obrazy/znajdz-forme.png")), 150)
[[nodiscard]] QImage pagePicture(const QByteArray& png, int percent,
                                 std::optional<int> widest = std::nullopt);

}  // namespace odmiennik::app
