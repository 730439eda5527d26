// SPDX-License-Identifier: GPL-3.0-or-later
// The printers of Windows.
#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <windows.h>
#include <winspool.h>

#include "app/platform/printers.h"

namespace odmiennik::app::platform {
namespace {

// A name as the system's wide text, ended by a NUL.
std::wstring wide(const Utf8Text& text) {
  const int size = MultiByteToWideChar(CP_UTF8, 0, text.c_str(), -1, nullptr, 0);
  std::wstring result(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.c_str(), -1, result.data(), size);
  return result;
}

}  // namespace

bool makeDefaultPrinter(const Utf8Text& printer) {
  return !printer.empty() && SetDefaultPrinterW(wide(printer).data()) != FALSE;
}

// The state of Qt's printer tells it here.
bool hasPrintSystemRefused() { return false; }

}  // namespace odmiennik::app::platform
