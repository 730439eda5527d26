// SPDX-License-Identifier: GPL-3.0-or-later
// Pages of the help on paper, made to be handed out.
#pragma once

#include <QPrinter>

#include "app/help/help_book.h"

namespace odmiennik::app {

// Prints a page with its title and the number of the sheet on each sheet. No line and no row of a
// table is cut; a table that goes on has its heads again. The printer's range of pages is kept to.
void printHelpPage(const HelpBook& book, const QUrl& address, QPrinter& printer);

}  // namespace odmiennik::app
