// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of --help and --version.
#include "cli/help.h"

#include "cli/options.h"
#include "formats/page.h"

namespace odmiennik::cli {

namespace {

// Where the explanations stand; behind a longer option they begin on a line of their own.
constexpr std::size_t kHelpColumn = 26;
constexpr std::size_t kGap = 2;

}  // namespace

bool appendHelp(Utf8Text& out, Utf8View) {
  out.append(
      "Użycie: odmien [OPCJE] [BEZOKOLICZNIK…]\n"
      "        odmien --find [OPCJE] [FORMA…]\n"
      "Odmienia francuskie czasowniki. Bez argumentów czyta je ze standardowego\n"
      "wejścia, po jednym w wierszu; po znaku tabulacji może stać rekord danych\n"
      "o czasowniku, który zastępuje dane ze spisu.\n\n");
  formats::Page page(out, false);
  for (const OptionRow& row : optionRows()) {
    page.moveTo(2);
    page.addUtf8(row.name);
    if (!row.valueName.empty()) page.addUtf8(" ");
    page.addUtf8(row.valueName);
    if (page.column() + kGap > kHelpColumn) page.endLine();
    page.moveTo(kHelpColumn);
    page.addUtf8(row.help);
    page.endLine();
  }
  out.append(
      "\nKod zakończenia: 0 odmieniono wszystko, 1 nie odmieniono któregoś czasownika,\n"
      "2 błędne użycie, 3 kłopot z plikiem.\n");
  return true;
}

bool appendVersion(Utf8Text& out, Utf8View) {
  out.append("odmien " ODMIENNIK_VERSION "\n");
  return true;
}

}  // namespace odmiennik::cli
