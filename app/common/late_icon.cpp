// SPDX-License-Identifier: GPL-3.0-or-later
// An icon that is made when it is first drawn.
#include "app/common/late_icon.h"

#include <QIconEngine>
#include <QPainter>
#include <utility>

namespace odmiennik::app {
namespace {

class LateIconEngine final : public QIconEngine {
 public:
  explicit LateIconEngine(std::function<QIcon()> make) : make_(std::move(make)) {}

  void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override {
    made().paint(painter, place, Qt::AlignCenter, mode, state);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return made().pixmap(size, mode, state);
  }
  QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return made().actualSize(size, mode, state);
  }
  [[nodiscard]] QIconEngine* clone() const override { return new LateIconEngine(*this); }

 private:
  const QIcon& made() {
    if (make_) icon_ = std::exchange(make_, {})();
    return icon_;
  }

  std::function<QIcon()> make_;
  QIcon icon_;
};

}  // namespace

QIcon lateIcon(std::function<QIcon()> make) { return QIcon(new LateIconEngine(std::move(make))); }

}  // namespace odmiennik::app
