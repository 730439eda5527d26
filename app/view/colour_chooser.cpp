// SPDX-License-Identifier: GPL-3.0-or-later
// The colour chooser over QColorDialog.
#include "app/view/colour_chooser.h"

#include <QColorDialog>

#include "app/layout/screen_room.h"

namespace odmiennik::app {

std::optional<QColor> QtColourChooser::choose(QWidget& parent, const QColor& start) {
  QColorDialog dialog(start, &parent);
  dialog.setObjectName(QStringLiteral("CommonDialog1"));
  dialog.setWindowTitle(QStringLiteral("Wybierz kolor"));
  dialog.setOption(QColorDialog::DontUseNativeDialog);  // that one speaks the system's language
  drawTogether(dialog);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.selectedColor();
}

}  // namespace odmiennik::app
