// SPDX-License-Identifier: GPL-3.0-or-later
// Title bars that the program draws.
#include "app/common/dialog_bars.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QToolButton>
#include <QWindow>
#include <algorithm>

#include "app/common/colours.h"

namespace odmiennik::app {
namespace {

// Qt tells of a frame only where it draws it.
bool drawsFrames() {
  return std::ranges::any_of(QGuiApplication::topLevelWindows(), [](const QWindow* window) {
    return window->isVisible() && window->frameMargins().top() > 0;
  });
}

bool isFramedDialog(const QWidget& widget) {
  return widget.isWindow() && widget.windowType() == Qt::Dialog && widget.layout() != nullptr &&
         !widget.windowFlags().testFlag(Qt::FramelessWindowHint);
}

// A frame of Qt's had edges to drag.
bool canBeResized(const QWidget& dialog) {
  return qobject_cast<const QDialog*>(&dialog) != nullptr &&
         qobject_cast<const QMessageBox*>(&dialog) == nullptr &&
         dialog.layout()->sizeConstraint() != QLayout::SetFixedSize;
}

class DialogBar final : public QWidget {
 public:
  explicit DialogBar(QWidget& dialog) : QWidget(&dialog), caption_(new QLabel(this)) {
    setObjectName(QStringLiteral("pasekTytułu"));
    caption_->setText(dialog.windowTitle());
    caption_->setAlignment(Qt::AlignCenter);
    auto* close = new QToolButton(this);
    close->setObjectName(QStringLiteral("cmdZamknijOkno"));
    close->setAccessibleName(QStringLiteral("Zamknij okno"));
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setAutoRaise(true);
    close->setFocusPolicy(Qt::NoFocus);
    connect(close, &QToolButton::clicked, &dialog, &QWidget::close, Qt::QueuedConnection);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(kGap, kGap, kGap, 0);
    row->addWidget(caption_, 1);
    row->addWidget(close);
    dialog.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* dialog, QEvent* event) override {
    if (event->type() == QEvent::WindowTitleChange) caption_->setText(window()->windowTitle());
    if (event->type() == QEvent::Paint) paintEdge(static_cast<QWidget&>(*dialog));
    return false;
  }

  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton) window()->windowHandle()->startSystemMove();
  }

 private:
  static constexpr int kGap = 4;

  static void paintEdge(QWidget& dialog) {
    QPainter painter(&dialog);
    painter.setPen(edgeColour(dialog.palette()));
    painter.drawRect(dialog.rect().adjusted(0, 0, -1, -1));
  }

  QLabel* caption_;
};

}  // namespace

DialogBars::DialogBars(QObject* parent) : QObject(parent) { qApp->installEventFilter(this); }

// Before the window is on the screen: the frame that it would get is not made.
bool DialogBars::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Show || event->spontaneous() || !watched->isWidgetType())
    return false;
  auto& widget = static_cast<QWidget&>(*watched);
  if (!isFramedDialog(widget) || !drawsFrames()) return false;
  widget.windowHandle()->setFlag(Qt::FramelessWindowHint);
  if (widget.layout()->menuBar() == nullptr) addDialogBar(widget);
  return false;
}

void addDialogBar(QWidget& dialog) {
  constexpr int kEdge = 1;
  dialog.setContentsMargins(kEdge, kEdge, kEdge, kEdge);
  auto* bar = new DialogBar(dialog);
  dialog.layout()->setMenuBar(bar);
  bar->show();  // the dialog has shown its other parts already
  dialog.resize(dialog.size() + QSize(2 * kEdge, bar->sizeHint().height() + 2 * kEdge));
  if (canBeResized(dialog)) static_cast<QDialog&>(dialog).setSizeGripEnabled(true);
}

}  // namespace odmiennik::app
