// SPDX-License-Identifier: GPL-3.0-or-later
// The opener of the help: makes the viewer when it is first needed.
#pragma once

#include <QObject>
#include <QPointer>

#include "app/help/help_opener.h"
#include "app/help/help_window.h"
#include "engine/utf8.h"

namespace odmiennik::app {

// Named "Hhopen1" among the main window's objects.
class HelpViewer final : public QObject, public HelpOpener {
  Q_OBJECT

 public:
  // The viewer's window belongs to `parent`; no help file is known yet. `store` keeps the size of
  // the pages.
  HelpViewer(QWidget& parent, UserStore& store);
  ~HelpViewer() override;

  // Where the help file is looked for, the first place first.
  void lookIn(QStringList places) { book_.lookIn(std::move(places)); }

  void open(Utf8View page) override;
  void openContext(int context) override;

 private:
  QWidget& parent_;
  UserStore& store_;
  HelpBook book_;
  QPointer<HelpWindow> window_;
};

}  // namespace odmiennik::app
