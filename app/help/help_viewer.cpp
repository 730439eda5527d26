// SPDX-License-Identifier: GPL-3.0-or-later
// The opener of the help.
#include "app/help/help_viewer.h"

#include "app/common/text.h"
#include "app/logic/tense_topics.h"

namespace odmiennik::app {

HelpViewer::HelpViewer(QWidget& parent, UserStore& store)
    : QObject(&parent), parent_(parent), store_(store) {
  setObjectName(QStringLiteral("Hhopen1"));
}

// The window reads the help file, which ends here.
HelpViewer::~HelpViewer() { delete window_; }

void HelpViewer::open(Utf8View page) {
  if (window_ == nullptr) window_ = new HelpWindow(book_, store_, &parent_);
  window_->showPage(fromUtf8(page));
}

void HelpViewer::openContext(int context) {
  open(context == kHowToContext ? kHowToPage : kWelcomePage);
}

}  // namespace odmiennik::app
