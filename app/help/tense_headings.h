// SPDX-License-Identifier: GPL-3.0-or-later
// The tense headings as links to their pages of the help.
#pragma once

#include <QLabel>
#include <QObject>
#include <array>

#include "app/controls/controls.h"
#include "app/help/help_opener.h"
#include "app/logic/tense_topics.h"

namespace odmiennik::app {

// Underlines the heading under the pointer and opens its page when it is clicked; a heading that is
// not underlined opens nothing. `help` outlives this object.
class TenseHeadings final : public QObject {
  Q_OBJECT

 public:
  TenseHeadings(const Controls& controls, HelpOpener& help, QObject* parent);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void pointAt(int heading);
  void click(int heading);
  void underline(int heading, bool isUnderlined) const;

  HelpOpener& help_;
  std::array<QLabel*, kTenseHeadings> labels_{};
  TopicHover hover_;
};

}  // namespace odmiennik::app
