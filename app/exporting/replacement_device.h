// SPDX-License-Identifier: GPL-3.0-or-later
// A file that is being replaced, as Qt's writers write to it.
#pragma once

#include <QIODevice>

namespace odmiennik::disk {
class FileReplacement;
}

namespace odmiennik::app {

// Takes everything: what cannot be written is known to the replacement, which is asked at the end.
class ReplacementDevice final : public QIODevice {
 public:
  // `file` outlives it.
  explicit ReplacementDevice(disk::FileReplacement& file);

  [[nodiscard]] bool isSequential() const override { return true; }

 protected:
  qint64 readData(char* /*data*/, qint64 /*size*/) override { return -1; }
  qint64 writeData(const char* data, qint64 size) override;

 private:
  disk::FileReplacement& file_;
};

}  // namespace odmiennik::app
