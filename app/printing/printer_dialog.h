// SPDX-License-Identifier: GPL-3.0-or-later
// The window in which the printer is chosen, and how it prints.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QSpinBox>

#include "app/common/steady_window.h"
#include "app/printing/print_choices.h"

namespace odmiennik::app {

// Offers what is kept and nothing else: the system's own dialog has pages, duplex and much that a
// picture of one window has no use for, and half of it in English.
class PrinterDialog final : public SteadyWindow<> {
  Q_OBJECT

 public:
  PrinterDialog(const PrintChoices& choices, QWidget* parent);

  // The printer's name as the system has it; empty when there is none.
  [[nodiscard]] QString printer() const;
  [[nodiscard]] PrintChoices choices() const;

 private:
  void layOut();
  void listPrinters();
  void listPapers();

  QComboBox& printers_;
  QComboBox& papers_;
  QSpinBox& copies_;
  QCheckBox& isGrey_;
  QPushButton* accept_ = nullptr;
  std::optional<QPageSize> paper_;
};

}  // namespace odmiennik::app
