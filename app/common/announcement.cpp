// SPDX-License-Identifier: GPL-3.0-or-later
// Sentences for screen readers. What they speak was tried: a change of a name or of a description
// reaches them from Qt 6.4 without its text and stays unspoken; a notification that comes into
// sight is spoken wherever the focus is.
#include "app/common/announcement.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QApplication>
#include <QPointer>
#include <QStringList>
#include <QTimer>

namespace odmiennik::app {
namespace {

// Later than what closes, opens or gets the focus meanwhile, which would interrupt the sentence.
constexpr int kDelayMilliseconds = 100;

// One a program: collects the sentences of one doing.
class Announcer final : public QObject {
 public:
  explicit Announcer(QObject& parent) : QObject(&parent) {
    delay_.setSingleShot(true);
    delay_.setInterval(kDelayMilliseconds);
    connect(&delay_, &QTimer::timeout, this, &Announcer::say);
  }

  void add(const QString& sentence) {
    sentences_ += sentence;
    delay_.start();
  }

  void answer(const QString& answer) {
    answer_ = answer;
    if (!answer.isEmpty()) delay_.start();
  }

  void setListener(std::function<void(const QString&)> listener) {
    listener_ = std::move(listener);
  }

  [[nodiscard]] const QString& said() const { return said_; }

 private:
  void say() {
    if (!answer_.isEmpty()) sentences_ += answer_;
    said_ = sentences_.join(QLatin1Char(' '));
    sentences_.clear();
    answer_.clear();
    if (said_.isEmpty()) return;
    if (listener_) return listener_(said_);
    QAccessibleEvent shown(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
  }

  QTimer delay_;
  QStringList sentences_;
  QString answer_;  // the last one
  QString said_;
  std::function<void(const QString&)> listener_;
};

// The notification as a screen reader sees it: part of the program, and of none of its windows,
// whose captions it would hear each time.
class Notification final : public QAccessibleObject {
 public:
  using QAccessibleObject::QAccessibleObject;
  QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Name) return {};
    return static_cast<const Announcer*>(object())->said();
  }
  QAccessible::Role role() const override { return QAccessible::Notification; }
  QAccessible::State state() const override { return {}; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(qApp);
  }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
};

QAccessibleInterface* notificationOf(const QString& /*className*/, QObject* object) {
  return dynamic_cast<Announcer*>(object) == nullptr ? nullptr : new Notification(object);
}

Announcer& announcer() {
  static QPointer<Announcer> only;
  if (!only) {
    QAccessible::installFactory(notificationOf);
    only = new Announcer(*qApp);
  }
  return *only;
}

}  // namespace

void announce(const QString& sentence) { announcer().add(sentence); }

void announceAnswer(const QString& answer) { announcer().answer(answer); }

void announceTo(std::function<void(const QString&)> listener) {
  announcer().setListener(std::move(listener));
}

}  // namespace odmiennik::app
