// SPDX-License-Identifier: GPL-3.0-or-later
// The style sheet of pages that leave the program, in the colours of its help.
#pragma once

#include "engine/utf8.h"

namespace odmiennik::formats {

inline constexpr Utf8View kPageStyle = R"css(
body { font-family: Arial, "Liberation Sans", sans-serif; font-size: 11pt; margin: 12px; color: #202020; background: #ffffff; }
section { max-width: 46em; margin: 0 auto 2em; }
h1 { font-size: 17pt; color: #1f3d7a; margin: 4px 0; }
h2 { font-size: 13pt; color: #1f3d7a; margin: 16px 0 6px; }
p { margin: 4px 0 8px; }
table { width: 100%; table-layout: fixed; border-collapse: collapse; margin: 6px 0 10px; }
th, td { padding: 3px 8px; border-bottom: 1px solid #b8c0cc; text-align: left; overflow-wrap: anywhere; }
th { background: #eef1f6; }
@media screen and (prefers-color-scheme: dark) {
  body { color: #e4e4e4; background: #1e2024; }
  h1, h2 { color: #9cc5ff; }
  th { background: #2c3038; }
  th, td { border-color: #4a505c; }
}
@media print {
  @page { size: A4; margin: 12mm 15mm; }
  body { font-size: 9pt; margin: 0; color: #000000; }
  section { max-width: none; margin: 0; break-after: page; }
  section:last-of-type { break-after: auto; }
  h1 { font-size: 15pt; }
  h2 { font-size: 11pt; break-after: avoid; margin: 6px 0 2px; }
  table { break-inside: avoid; margin: 2px 0 4px; }
  th, td { padding: 0 5px; }
}
)css";

}  // namespace odmiennik::formats
