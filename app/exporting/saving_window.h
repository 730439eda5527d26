// SPDX-License-Identifier: GPL-3.0-or-later
// The window frmZapisListy: how far the saving of a list has come.
#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QTimer>
#include <memory>

#include "app/common/steady_window.h"
#include "app/exporting/list_saver.h"

namespace odmiennik::app {

// Saves while it is open, between the events, so that everything is painted and can be pressed.
// Closed before the end, by whatever way, it leaves no file. While a message stands over it, it
// waits.
class SavingWindow final : public SteadyWindow<> {
  Q_OBJECT

 public:
  // `name` is the file's, as it is shown.
  SavingWindow(std::unique_ptr<ListSaver> saver, const QString& name, QWidget* parent);
  ~SavingWindow() override;

  void done(int result) override;

 signals:
  // The file stands in its place, or could not be written; not when the user has given up.
  void ended(bool isSaved);

 private:
  void layOut(const QString& name);
  void goOn();
  void tellPart();

  std::unique_ptr<ListSaver> saver_;
  QProgressBar& bar_;
  QTimer turn_;
  bool isGoingOn_ = false;
  int toldQuarter_ = 0;
};

}  // namespace odmiennik::app
