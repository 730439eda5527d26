// SPDX-License-Identifier: GPL-3.0-or-later
// Tips under the pointer and below the focus.
#include "app/hints/tooltips.h"

#include <QApplication>
#include <QLineEdit>
#include <QStyle>
#include <QToolTip>

#include "app/common/bubble.h"
#include "app/controls/form_surface.h"
#include "app/main_window/main_window.h"

namespace odmiennik::app {

// A control without a tooltip of its own leaves the pointer's question to the ground it stands on.
Tooltips::Tooltips(const MainWindow& window) : tips_(window), surface_(window.surface()) {
  surface_.installEventFilter(this);
  wait_.setSingleShot(true);
  connect(&wait_, &QTimer::timeout, this, &Tooltips::showAtFocus);
  connect(qApp, &QApplication::focusChanged, this, &Tooltips::focusChanged);
}

bool Tooltips::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() != QEvent::ToolTip) return false;
  showAtPointer(static_cast<const QHelpEvent&>(*event));
  return true;
}

void Tooltips::showAtPointer(const QHelpEvent& event) const {
  QWidget* control = surface_.childAt(event.pos());
  if (control == nullptr)
    return QToolTip::showText(event.globalPos(), asTip(tips_.tipAt(event.pos())), &surface_);
  QToolTip::showText(event.globalPos(), asTip(tips_.tipOf(*control)), control, control->rect());
}

void Tooltips::focusChanged(const QWidget* before, QWidget* now) {
  wait_.stop();
  if (focused_) hideBubble(*focused_);
  const bool isWalking = before != nullptr && now != nullptr && before->window() == now->window();
  focused_ = isWalking && now->parentWidget() == &surface_ ? now : nullptr;
  if (focused_) wait_.start(now->style()->styleHint(QStyle::SH_ToolTip_WakeUpDelay));
}

bool Tooltips::mayShowAtFocus() const {
  const bool isInFront = focused_ && focused_->isActiveWindow() && focused_->hasFocus();
  return isInFront && !focused_->underMouse() && QApplication::activePopupWidget() == nullptr;
}

void Tooltips::showAtFocus() {
  if (!mayShowAtFocus()) return;
  const QString text = tips_.tipOf(*focused_);
  if (text.isEmpty()) return;
  showBubble(*focused_, text);
  if (auto* box = qobject_cast<QLineEdit*>(focused_))
    connect(
        box, &QLineEdit::textChanged, this, [box] { hideBubble(*box); }, Qt::SingleShotConnection);
}

}  // namespace odmiennik::app
