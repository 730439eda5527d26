// SPDX-License-Identifier: GPL-3.0-or-later
// The seam on Windows: the system's own calls. Paths stay in the system's code page, since they
// only go from one of its calls to another.
#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <windows.h>
// windows.h must come before shellapi.h.
#include <shellapi.h>
#include <winspool.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

#include "app/logic/start_up.h"
#include "app/logic/system_information.h"
#include "app/platform/platform.h"

namespace odmiennik::app::platform {
namespace {

static_assert(kSetWindowPosFlags == (SWP_SHOWWINDOW | SWP_NOACTIVATE));

constexpr std::size_t kFolderSize = 255;
constexpr std::size_t kRegistryTextSize = 1024;

// The text in a buffer up to its first NUL.
template <std::size_t size>
std::string textOf(const std::array<char, size>& buffer) {
  const std::string_view all(buffer.data(), buffer.size());
  return std::string(all.substr(0, all.find('\0')));
}

Utf8Text fromWide(const wchar_t* text) {
  const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
  Utf8Text utf8(static_cast<std::size_t>(std::max(size, 1)) - 1, '\0');
  if (size > 1) WideCharToMultiByte(CP_UTF8, 0, text, -1, utf8.data(), size, nullptr, nullptr);
  return utf8;
}

std::wstring toWide(Utf8View utf8) {
  const auto length = static_cast<int>(utf8.size());
  const int size = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, nullptr, 0);
  std::wstring text(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, text.data(), size);
  return text;
}

bool isFile(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

std::string windowsFolder() {
  std::array<char, kFolderSize> buffer{};
  GetWindowsDirectoryA(buffer.data(), static_cast<UINT>(buffer.size()));
  return textOf(buffer);
}

// A key of the local machine, open for reading; closed with its owner.
class Key {
 public:
  explicit Key(const std::string& path)
      : isOpen_(RegOpenKeyExA(HKEY_LOCAL_MACHINE, path.c_str(), 0, KEY_READ, &key_) ==
                ERROR_SUCCESS) {}
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  ~Key() {
    if (isOpen_) RegCloseKey(key_);
  }

  [[nodiscard]] std::optional<std::string> text(const std::string& value) const {
    std::array<char, kRegistryTextSize> buffer{};
    auto size = static_cast<DWORD>(buffer.size());
    DWORD type = REG_NONE;
    if (!isOpen_ ||
        RegQueryValueExA(key_, value.c_str(), nullptr, &type,
                         reinterpret_cast<BYTE*>(buffer.data()), &size) != ERROR_SUCCESS)
      return std::nullopt;
    if (type != REG_SZ && type != REG_EXPAND_SZ) return std::nullopt;
    return std::string(withoutTerminatingNul({buffer.data(), size}));
  }

 private:
  HKEY key_ = nullptr;
  bool isOpen_;  // behind the key that it opens
};

class WindowsRegistry final : public Registry {
 public:
  std::optional<std::string> localMachineText(std::string_view key,
                                              std::string_view value) override {
    return Key(std::string(key)).text(std::string(value));
  }
};

}  // namespace

std::vector<Utf8Text> arguments(int /*count*/, char** /*values*/) {
  int count = 0;
  wchar_t** values = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<Utf8Text> texts;
  for (int i = 1; values != nullptr && i < count; ++i) texts.push_back(fromWide(values[i]));
  LocalFree(values);
  return texts;
}

// The carried font, drawn by Windows' own engine, has uneven gaps between the letters of the boxes.
void chooseFontEngine() {
  constexpr char kPlatform[] = "QT_QPA_PLATFORM";
  if (std::getenv(kPlatform) == nullptr) _putenv_s(kPlatform, "windows:fontengine=freetype");
}

void tell(Utf8View text, bool isError) {
  MessageBoxW(nullptr, toWide(text).c_str(), L"Odmiennik",
              isError ? MB_ICONEXCLAMATION : MB_ICONINFORMATION);
}

std::string characterMap() {
  std::string path = characterMapPath(windowsFolder());
  return isFile(path) ? path : std::string();
}

std::string systemInformation() {
  WindowsRegistry registry;
  return systemInformationTool(registry, isFile).value_or(std::string());
}

bool start(const std::string& program) {
  STARTUPINFOA window{};
  window.cb = sizeof window;
  window.dwFlags = STARTF_USESHOWWINDOW;
  window.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION started{};
  std::string command = '"' + program + '"';
  if (CreateProcessA(program.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                     &window, &started) == 0)
    return false;
  // Only the program in front may let another come to the front.
  AllowSetForegroundWindow(started.dwProcessId);
  CloseHandle(started.hThread);
  CloseHandle(started.hProcess);
  return true;
}

bool makeDefaultPrinter(const Utf8Text& printer) {
  return !printer.empty() && SetDefaultPrinterW(toWide(printer).data()) != FALSE;
}

// The state of Qt's printer tells it here.
bool hasPrintSystemRefused() { return false; }

bool mayPlaceWindows() { return true; }

// The size is limited by the system itself.
void setAlwaysOnTop(std::uintptr_t handle, bool isOnTop, const Screen& screen) {
  const WindowPlace place = placeOnTop(isOnTop, screen);
  SetWindowPos(reinterpret_cast<HWND>(handle), isOnTop ? HWND_TOPMOST : HWND_NOTOPMOST, place.x,
               place.y, place.width, place.height, kSetWindowPosFlags);
}

bool movePointer(int x, int y) { return SetCursorPos(x, y) != 0; }

void onTermination(std::function<void()> /*end*/) {}

int virtualKey(std::uint32_t /*scanCode*/, std::uint32_t nativeKey) {
  return static_cast<int>(nativeKey);
}

}  // namespace odmiennik::app::platform
