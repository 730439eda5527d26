// SPDX-License-Identifier: GPL-3.0-or-later
// A conjugation on the clipboard.
#pragma once

#include <QMimeData>
#include <memory>

#include "formats/answer.h"

namespace odmiennik::app {

// As a page whose tables a word processor takes for tables, and as a text for everything else.
[[nodiscard]] std::unique_ptr<QMimeData> copyOf(const formats::Answer& answer);

}  // namespace odmiennik::app
