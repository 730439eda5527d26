// SPDX-License-Identifier: GPL-3.0-or-later
// How the parts of the window open the help, without knowing what shows it.
#pragma once

#include "engine/utf8.h"

namespace odmiennik::app {

class HelpOpener {
 public:
  virtual ~HelpOpener() = default;

  // Shows a page of the help file: open("strony\\default.htm"). A page or a file that is not
  // there is reported by the viewer; nothing is returned and nothing is thrown.
  virtual void open(Utf8View page) = 0;

  // Shows the page of a help context: openContext(kHowToContext). A context that has no page shows
  // the first page of the help.
  virtual void openContext(int context) = 0;
};

}  // namespace odmiennik::app
