// SPDX-License-Identifier: GPL-3.0-or-later
// The program folder.
#include "disk/program_folder.h"

#include "engine/normalization.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif
#ifdef __APPLE__
#include <mach-o/dyld.h>
#endif

#include <cerrno>
#include <cstdlib>
#include <system_error>

namespace odmiennik::disk {

namespace {

namespace fs = std::filesystem;

bool isInstalled(const fs::path& folder) {
  std::error_code ignored;
  return folder.filename() == "bin" &&
         fs::is_directory(folder.parent_path() / "share" / "odmiennik", ignored);
}

// Whether the system lets this user put no file into the folder. What it cannot tell is no refusal:
// a network folder that is silent for a moment must not make the verbs in it seem lost.
bool refusesFiles(const fs::path& folder);

Utf8Text utf8Of(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

}  // namespace

fs::path programFolder(const fs::path& executable, const fs::path& userData) {
  const fs::path folder = executable.parent_path();
  const bool isForReading = isInstalled(folder) || refusesFiles(folder);
  return isForReading && !userData.empty() ? userData : folder;
}

Utf8Text programFolder() {
  const fs::path folder = programFolder(executablePath(), userDataFolder());
  return folder.empty() ? Utf8Text(".") : utf8Of(folder);
}

Utf8View withoutTrailingSeparators(Utf8View folder) {
  const auto last = folder.find_last_not_of("/\\ ");
  return folder.substr(0, last == Utf8View::npos ? 0 : last + 1);
}

#if defined(_WIN32)

namespace {

// The folder is opened for adding a file, and none is added: its attributes tell nothing of rights.
bool refusesFiles(const fs::path& folder) {
  constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const HANDLE opened = CreateFileW(folder.c_str(), FILE_ADD_FILE, kShared, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (opened != INVALID_HANDLE_VALUE) {
    CloseHandle(opened);
    return false;
  }
  const DWORD fault = GetLastError();
  return fault == ERROR_ACCESS_DENIED || fault == ERROR_WRITE_PROTECT;
}

}  // namespace

fs::path executablePath() {
  std::wstring path(32768, L'\0');
  const DWORD size = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  path.resize(size < path.size() ? size : 0);
  return path;
}

fs::path userDataFolder() {
  const wchar_t* data = _wgetenv(L"APPDATA");
  return data == nullptr || *data == L'\0' ? fs::path() : fs::path(data) / "Odmiennik";
}

#else

namespace {

bool refusesFiles(const fs::path& folder) {
  if (::faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0) return false;
  return errno == EACCES || errno == EPERM || errno == EROFS;
}

}  // namespace

fs::path executablePath() {
#ifdef __APPLE__
  char path[4096];
  uint32_t size = sizeof path;
  if (_NSGetExecutablePath(path, &size) != 0) return {};
  std::error_code ignored;
  return fs::canonical(path, ignored);
#else
  std::error_code ignored;
  return fs::read_symlink("/proc/self/exe", ignored);
#endif
}

fs::path userDataFolder() {
  const char* data = std::getenv("XDG_DATA_HOME");
  // A relative folder is to be passed over: it would change with the current one.
  if (data != nullptr && *data == '/') return fs::path(data) / "odmiennik";
  const char* home = std::getenv("HOME");
  if (home == nullptr || *home == '\0') return {};
  return fs::path(home) / ".local" / "share" / "odmiennik";
}

#endif

Utf8Text AppFolder(Utf8View folder) {
  const std::string_view bare = engine::trimmed(bytesOf(folder));
  if (bare.ends_with('/') || bare.ends_with('\\')) return {};
  // Leading blanks belong to the name; only the trailing ones go.
  const Utf8View kept = folder.substr(0, folder.find_last_not_of(' ') + 1);
  return Utf8Text(kept) + static_cast<char>(std::filesystem::path::preferred_separator);
}

}  // namespace odmiennik::disk
