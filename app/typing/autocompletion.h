// SPDX-License-Identifier: GPL-3.0-or-later
// Completion of the infinitive while it is typed, and its switch in the menu.
#pragma once

#include <QAction>
#include <QObject>

#include "app/controls/form_box.h"
#include "app/logic/entry_box.h"

namespace odmiennik::app {

class UserStore;

// The item's check mark shows the switch; the user's store keeps it from one run to the next.
class Autocompletion final : public QObject {
  Q_OBJECT

 public:
  Autocompletion(FormBox& entry, QAction& item, UserStore& store);

  [[nodiscard]] bool isOn() const { return switch_.isOn() && !isSuspended_; }

  void invert();

  // Completes nothing for as long as it is suspended; the switch and the store stay as they are.
  void suspend(bool isSuspended) { isSuspended_ = isSuspended; }

  // Completes what stands in the entry box: "all" becomes "aller" with "er" selected. A text that
  // no verb begins with stays as it is, its caret too.
  void complete();

 private:
  FormBox& entry_;
  UserStore& store_;
  CompletionSwitch switch_;
  bool isSuspended_ = false;
};

}  // namespace odmiennik::app
