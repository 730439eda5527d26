// SPDX-License-Identifier: GPL-3.0-or-later
// Captions of drop-down lists.
#include "app/common/caption.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>

#include "app/common/announcement.h"

namespace odmiennik::app {

QWidget* captionOf(const QString& caption, QComboBox& list) {
  auto* holder = new QWidget;
  auto* place = new QHBoxLayout(holder);
  place->setContentsMargins({});
  auto* label = new QLabel(caption);
  place->addWidget(label);
  label->setBuddy(&list);
  list.setAccessibleDescription(QString(caption).remove('&').remove(':'));
  QObject::connect(&list, &QComboBox::currentTextChanged, &list, [&list](const QString& choice) {
    if (list.hasFocus()) announceAnswer(choice);
  });
  return holder;
}

}  // namespace odmiennik::app
