// SPDX-License-Identifier: GPL-3.0-or-later
// What the user has chosen for printing beside the printer.
#pragma once

#include <QPageSize>
#include <QPrinterInfo>
#include <QString>
#include <optional>

class QPrinter;

namespace odmiennik::app {

// Kept while the program runs.
struct PrintChoices {
  std::optional<QPageSize> paper;  // the printer's own until one is chosen
  int copies = 1;
  bool isGrey = false;
};

// Gives the choices to a printer of that description; a paper that it does not have is passed over.
void apply(const PrintChoices& choices, const QPrinterInfo& info, QPrinter& printer);

// A paper as a Polish user names it: "A4", "B5", or its measures, "216 × 279 mm".
[[nodiscard]] QString paperName(const QPageSize& paper);

}  // namespace odmiennik::app
