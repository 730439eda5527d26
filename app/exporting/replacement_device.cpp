// SPDX-License-Identifier: GPL-3.0-or-later
// Writing through Qt.
#include "app/exporting/replacement_device.h"

#include "disk/replacement.h"

namespace odmiennik::app {

ReplacementDevice::ReplacementDevice(disk::FileReplacement& file) : file_(file) {
  open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

qint64 ReplacementDevice::writeData(const char* data, qint64 size) {
  file_.write({data, static_cast<std::size_t>(size)});
  return size;
}

}  // namespace odmiennik::app
