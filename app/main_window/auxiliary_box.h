// SPDX-License-Identifier: GPL-3.0-or-later
// The check box that says with which auxiliary the compound tenses are built.
#pragma once

#include <QCheckBox>

#include "engine/conjugation.h"

namespace odmiennik::app {

class AuxiliaryBox {
 public:
  explicit AuxiliaryBox(QCheckBox& box) : box_(box) {}

  // Caption and tick follow the auxiliary; nobody is told of a click.
  void show(const engine::Conjugation& conjugation) const;

  [[nodiscard]] QCheckBox& widget() const { return box_; }

 private:
  QCheckBox& box_;
};

}  // namespace odmiennik::app
