// SPDX-License-Identifier: GPL-3.0-or-later
// What the keys of the form boxes do besides typing: completion, and the hint of read-only boxes.
#pragma once

#include <QKeyEvent>
#include <QObject>

#include "app/help/help_opener.h"
#include "app/logic/entry_box_hint.h"
#include "app/logic/refused_keys.h"
#include "app/main_window/form_boxes.h"
#include "app/typing/autocompletion.h"
#include "dictionary/messages.h"

namespace odmiennik::app {

class BoxKeys final : public QObject {
  Q_OBJECT

 public:
  // `shortcuts` has the actions whose keys are no letters for a box; the hint's Help button opens
  // `help`.
  BoxKeys(const FormBoxes& boxes, const QObject& shortcuts, Autocompletion& completion,
          dictionary::MessageBoxes& messages, HelpOpener& help);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void released(int slot, const QKeyEvent& event);
  void committed(const QString& text);
  void askForHint();
  void showHint();
  [[nodiscard]] bool isShortcut(const QKeyEvent& event) const;

  const FormBoxes& boxes_;
  const QObject& shortcuts_;
  Autocompletion& completion_;
  dictionary::MessageBoxes& messages_;
  HelpOpener& help_;
  ReadOnlyBoxHint hint_;
  RefusedKeys refused_;
  bool isHintOpen_ = false;
};

}  // namespace odmiennik::app
