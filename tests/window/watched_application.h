// SPDX-License-Identifier: GPL-3.0-or-later
// An application that knows which events are being delivered.
#pragma once

#include <QApplication>
#include <QEvent>
#include <QScopeGuard>
#include <algorithm>
#include <vector>

namespace odmiennik::window_test {

// Whatever opens a modal window waits in it, with the event that led there unfinished; a window
// that is half resized, shown or painted must not wait.
class WatchedApplication final : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override {
    delivered_.push_back(event->type());
    const auto end = qScopeGuard([this] { delivered_.pop_back(); });
    return QApplication::notify(receiver, event);
  }

  // Ends the test when a window waits for what is modal.
  static void mayOpenModal() {
    constexpr QEvent::Type kBusy[] = {QEvent::Resize,
                                      QEvent::Move,
                                      QEvent::Show,
                                      QEvent::ShowToParent,
                                      QEvent::Hide,
                                      QEvent::Paint,
                                      QEvent::UpdateRequest,
                                      QEvent::WindowStateChange,
                                      QEvent::Expose,
                                      QEvent::LayoutRequest,
                                      QEvent::ShowWindowRequest};
    const auto& delivered = static_cast<WatchedApplication*>(qApp)->delivered_;
    for (const QEvent::Type type : kBusy)
      if (std::ranges::find(delivered, type) != delivered.end())
        qFatal("something modal opens inside an event of type %d", type);
  }

 private:
  std::vector<QEvent::Type> delivered_;
};

}  // namespace odmiennik::window_test
