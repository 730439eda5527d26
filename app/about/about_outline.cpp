// SPDX-License-Identifier: GPL-3.0-or-later
// The outline of the about window.
#include "app/about/about_outline.h"

namespace odmiennik::app {
namespace {

constexpr int kRight = kAboutSize.width();
constexpr int kBottom = kAboutSize.height() - kAboutTip;  // of the body
constexpr int kCut = 14;
constexpr int kFold = 40;
constexpr int kTipLeft = 54;

QPolygon body() {
  return QPolygon({{kCut, 0},
                   {kRight - kFold, 0},
                   {kRight, kFold},
                   {kRight, kBottom - kCut},
                   {kRight - kCut, kBottom},
                   {kCut, kBottom},
                   {0, kBottom - kCut},
                   {0, kCut}});
}

QPolygon tip() {
  return QPolygon(
      {{kTipLeft, kBottom}, {kTipLeft + kAboutTip, kBottom}, {kTipLeft, kBottom + kAboutTip}});
}

}  // namespace

QPolygon aboutOutline() {
  QPolygon outline = body();
  constexpr int kBeforeLeftBottom = 5;  // the edge along the bottom runs from right to left
  outline.insert(kBeforeLeftBottom, {kTipLeft + kAboutTip, kBottom});
  outline.insert(kBeforeLeftBottom + 1, {kTipLeft, kBottom + kAboutTip});
  outline.insert(kBeforeLeftBottom + 2, {kTipLeft, kBottom});
  return outline;
}

QPolygon aboutFold() {
  return QPolygon({{kRight - kFold, 0}, {kRight, kFold}, {kRight - kFold, kFold}});
}

QRegion aboutRegion() { return QRegion(body()).united(QRegion(tip())); }

}  // namespace odmiennik::app
