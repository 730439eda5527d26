// SPDX-License-Identifier: GPL-3.0-or-later
// Whether a compiled help file is built soundly enough to be read with libchm.
#pragma once

#include <string_view>

namespace odmiennik::app {

// libchm follows the directory of a file as it stands there: without this check a page that names
// itself as its successor is followed for ever, and a number without an end is read beyond the
// page. Refused are directories outside the file, entries that leave their page, circles, and a
// description of the compression that cannot be read: libchm would divide by what it has not read.
// `bytes` is the whole file.
[[nodiscard]] bool hasSoundDirectory(std::string_view bytes);

// Whether the compressed part can be unpacked: the two records that describe it agree with the
// buffers that libchm keeps for it.
[[nodiscard]] bool canBeUnpacked(std::string_view controlData, std::string_view resetTable);

}  // namespace odmiennik::app
