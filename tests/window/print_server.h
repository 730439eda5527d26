// SPDX-License-Identifier: GPL-3.0-or-later
// A print server of a test's own, with real queues that write what they are handed into files.
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <memory>

#include "tests/support/scratch_folder.h"

namespace odmiennik::window_test {

// Runs a program of the system; its output, or nothing when it fails or is absent.
QByteArray outputOf(const QString& program, const QStringList& arguments);

// CUPS with all its files in one folder. The process that creates it finds its printers there, and
// keeps its user's print options there as well; so it has to come before the first question about
// printers.
class PrintServer {
 public:
  // Why a test cannot have one on this machine; empty when it can.
  [[nodiscard]] static QString obstacle();

  PrintServer();
  PrintServer(const PrintServer&) = delete;
  PrintServer& operator=(const PrintServer&) = delete;
  ~PrintServer();

  [[nodiscard]] bool isRunning() const;

  // A new queue that accepts everything.
  void addQueue(const QString& name) const;
  void removeQueue(const QString& name) const;
  void makeDefault(const QString& name) const;

  // The document that a queue has printed, once it is complete.
  [[nodiscard]] QString document(const QString& queue) const;
  [[nodiscard]] bool hasPrinted(const QString& queue) const;

 private:
  void configure() const;
  [[nodiscard]] QString path(const QString& name) const;

  scratch::ScratchFolder folder_;
  std::unique_ptr<QProcess> scheduler_;
};

}  // namespace odmiennik::window_test
