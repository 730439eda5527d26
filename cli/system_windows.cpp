// SPDX-License-Identifier: GPL-3.0-or-later
// The seam on Windows: UTF-8 in the console, no translation of line ends.
#include <fcntl.h>
#include <io.h>
// windows.h must come before shellapi.h.
#include <windows.h>

#include <shellapi.h>

#include <algorithm>
#include <cerrno>

#include "cli/system.h"

namespace odmiennik::cli {
namespace {

Utf8Text fromWide(const wchar_t* text) {
  const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
  if (size <= 1) return {};
  Utf8Text utf8(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text, -1, utf8.data(), size, nullptr, nullptr);
  utf8.pop_back();
  return utf8;
}

// Whether the last write failed because nobody reads any more: the C library tells it of some of
// these alone.
bool isReaderGone() {
  const DWORD fault = GetLastError();
  return errno == EPIPE || fault == ERROR_BROKEN_PIPE || fault == ERROR_NO_DATA ||
         fault == ERROR_PIPE_NOT_CONNECTED;
}

}  // namespace

void prepareStreams() {
  for (const Stream stream : {Stream::in, Stream::out, Stream::err})
    _setmode(static_cast<int>(stream), _O_BINARY);
  SetConsoleOutputCP(CP_UTF8);
  SetConsoleCP(CP_UTF8);
  // Colours are escape sequences, which a console obeys only when asked to.
  const HANDLE console = GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD mode = 0;
  if (GetConsoleMode(console, &mode))
    SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

void endAtClosedPipe() {}

Utf8View endOfInputKeys() { return "Ctrl+Z, Enter"; }

std::vector<Utf8Text> arguments(int, char**) {
  int count = 0;
  wchar_t** values = CommandLineToArgvW(GetCommandLineW(), &count);
  if (values == nullptr) return {};
  std::vector<Utf8Text> texts;
  for (int i = 1; i < count; ++i) texts.push_back(fromWide(values[i]));
  LocalFree(values);
  return texts;
}

std::optional<std::size_t> readInput(std::span<char> buffer) {
  const int size =
      _read(static_cast<int>(Stream::in), buffer.data(), static_cast<unsigned>(buffer.size()));
  if (size < 0) return std::nullopt;
  return static_cast<std::size_t>(size);
}

WriteResult write(Stream stream, Utf8View bytes) {
  // A console refuses large blocks.
  constexpr std::size_t kBlock = 16384;
  while (!bytes.empty()) {
    const auto block = static_cast<unsigned>(std::min(bytes.size(), kBlock));
    const int size = _write(static_cast<int>(stream), bytes.data(), block);
    if (size <= 0) return isReaderGone() ? WriteResult::closed : WriteResult::failed;
    bytes.remove_prefix(static_cast<std::size_t>(size));
  }
  return WriteResult::written;
}

bool isTerminal(Stream stream) { return _isatty(static_cast<int>(stream)) != 0; }

Utf8Text environment(const char* name) {
  const std::wstring wideName(name, name + std::char_traits<char>::length(name));
  const wchar_t* value = _wgetenv(wideName.c_str());
  return value == nullptr ? Utf8Text() : fromWide(value);
}

}  // namespace odmiennik::cli
