// SPDX-License-Identifier: GPL-3.0-or-later
// The style of the windows: Fusion, with frames of boxes that are painted once and contrasts that
// hold in every theme.
#pragma once

#include <QProxyStyle>

class QStyleOptionButton;
class QStyleOptionFrame;

namespace odmiennik::app {

// The same calm look on every system; native styles differ in the room that a box needs. A window
// of 101 boxes spends a third of its painting on the rounded edges of their frames. Here the frame
// is painted once for each look it can have, and copied. Boxes show whether they can be typed into:
// those that can by a clear edge, those that cannot by a faint one and a ground of their own. What
// is disabled can be read: a caption informs though it cannot be clicked.
class ProgramStyle final : public QProxyStyle {
  Q_OBJECT

 public:
  ProgramStyle();

  // From now on everything is drawn for paper, or for the screen again: on paper every frame is one
  // thin line, drawn at the printer's resolution, and nothing shows the focus.
  void paintForPaper(bool isForPaper) { isForPaper_ = isForPaper; }

  // The hint that tells widgets of it: 1 for paper.
  static constexpr StyleHint kIsForPaper = SH_CustomBase;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;

  // The square of a check box is as high as its letters.
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;

  // The frame of a group begins below its title, however small that is.
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                       SubControl subControl, const QWidget* widget) const override;

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;

  void drawItemText(QPainter* painter, const QRect& place, int flags, const QPalette& palette,
                    bool isEnabled, const QString& text,
                    QPalette::ColorRole textRole) const override;

  // The icons of message boxes are the program's own.
  QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                     const QWidget* widget) const override;

  // Buttons are plain, in Qt's own dialogs too.
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override;

 private:
  void drawBox(const QStyleOptionFrame& option, QPainter& painter, const QWidget* widget) const;
  void drawTickBox(const QStyleOptionButton& option, QPainter& painter,
                   const QWidget* widget) const;
  [[nodiscard]] QPixmap frameOf(const QStyleOption& option, qreal pixelRatio) const;
  [[nodiscard]] QPixmap paintedFrame(const QStyleOption& option, qreal pixelRatio) const;

  bool isForPaper_ = false;
};

}  // namespace odmiennik::app
