// SPDX-License-Identifier: GPL-3.0-or-later
// Files by the calls of Windows.
#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <windows.h>

#include <algorithm>
#include <functional>
#include <string>
#include <system_error>
#include <utility>

#include "disk/file_system.h"

namespace odmiennik::disk {
namespace {

namespace fs = std::filesystem;

constexpr DWORD kLargestTransfer = 1U << 20;

// A handle that is closed with its owner.
class Handle {
 public:
  explicit Handle(HANDLE handle) : handle_(handle) {}
  Handle(Handle&& other) noexcept : handle_(other.handle_) { other.handle_ = INVALID_HANDLE_VALUE; }
  Handle& operator=(Handle&&) = delete;
  ~Handle() { close(); }

  [[nodiscard]] bool isOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  [[nodiscard]] HANDLE get() const { return handle_; }
  bool close() {
    const HANDLE closing = handle_;
    handle_ = INVALID_HANDLE_VALUE;
    return closing == INVALID_HANDLE_VALUE || CloseHandle(closing) != 0;
  }

 private:
  HANDLE handle_;
};

// The file's name as it is spelled on the disk: the call that replaces a file gives it the spelling
// by which it was asked for.
fs::path asSpelled(const fs::path& file) {
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileW(file.c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return file;
  FindClose(search);
  return file.parent_path() / found.cFileName;
}

DWORD transferSize(std::size_t size) {
  return static_cast<DWORD>(std::min<std::size_t>(size, kLargestTransfer));
}

class WindowsInput final : public InputFile {
 public:
  explicit WindowsInput(Handle file) : file_(std::move(file)) {}

  std::ptrdiff_t read(char* buffer, std::size_t size) override {
    DWORD got = 0;
    if (ReadFile(file_.get(), buffer, transferSize(size), &got, nullptr) == 0) return -1;
    return static_cast<std::ptrdiff_t>(got);
  }

  bool skip(std::uint64_t count) override {
    LARGE_INTEGER distance;
    distance.QuadPart = static_cast<LONGLONG>(count);
    return SetFilePointerEx(file_.get(), distance, nullptr, FILE_CURRENT) != 0;
  }

 private:
  Handle file_;
};

class WindowsOutput final : public OutputFile {
 public:
  explicit WindowsOutput(Handle file) : file_(std::move(file)) {}

  bool write(std::string_view bytes) override {
    while (!bytes.empty()) {
      DWORD put = 0;
      if (WriteFile(file_.get(), bytes.data(), transferSize(bytes.size()), &put, nullptr) == 0)
        return false;
      bytes.remove_prefix(put);
    }
    return true;
  }

  bool finish() override {
    const bool isFlushed = FlushFileBuffers(file_.get()) != 0;
    return file_.close() && isFlushed;
  }

 private:
  Handle file_;
};

// Whether something stands under that name that must not be replaced.
bool isProtected(const fs::path& file) {
  const DWORD attributes = GetFileAttributesW(file.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES &&
         (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0;
}

Presence presenceAfter(bool isFound) {
  if (isFound) return Presence::there;
  const DWORD fault = GetLastError();
  const bool isMissing = fault == ERROR_FILE_NOT_FOUND || fault == ERROR_PATH_NOT_FOUND;
  return isMissing ? Presence::notThere : Presence::unknown;
}

std::uint64_t joined(DWORD high, DWORD low) {
  return (static_cast<std::uint64_t>(high) << 32) | low;
}

// A mutex that every program of this session finds by its name, which is made of the folder's.
class WindowsLock final : public FolderLock {
 public:
  explicit WindowsLock(HANDLE mutex) : mutex_(mutex) {}
  WindowsLock(const WindowsLock&) = delete;
  WindowsLock& operator=(const WindowsLock&) = delete;
  ~WindowsLock() override {
    if (mutex_ == nullptr) return;
    ReleaseMutex(mutex_);
    CloseHandle(mutex_);
  }

 private:
  HANDLE mutex_;
};

std::wstring mutexName(const fs::path& folder) {
  std::error_code ignored;
  std::wstring name = fs::weakly_canonical(folder, ignored).wstring();
  CharLowerBuffW(name.data(), static_cast<DWORD>(name.size()));
  return L"Local\\Odmiennik-" + std::to_wstring(std::hash<std::wstring>{}(name));
}

class WindowsFiles final : public FileSystem {
 public:
  Presence presence(const fs::path& name) override {
    return presenceAfter(GetFileAttributesW(name.c_str()) != INVALID_FILE_ATTRIBUTES);
  }

  FileLook look(const fs::path& file) override {
    constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const Handle handle(CreateFileW(file.c_str(), FILE_READ_ATTRIBUTES, kShared, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (!handle.isOpen()) return {presenceAfter(false), {}};
    BY_HANDLE_FILE_INFORMATION found{};
    if (GetFileInformationByHandle(handle.get(), &found) == 0) return {};
    const FILETIME& changed = found.ftLastWriteTime;
    return {Presence::there,
            {found.dwVolumeSerialNumber, joined(found.nFileIndexHigh, found.nFileIndexLow),
             joined(found.nFileSizeHigh, found.nFileSizeLow),
             static_cast<std::int64_t>(joined(changed.dwHighDateTime, changed.dwLowDateTime))}};
  }

  std::optional<fs::path> realFile(const fs::path& file) override {
    std::error_code fault;
    if (!fs::is_symlink(file, fault)) {
      const bool isTold = !fault || presence(file) == Presence::notThere;
      return isTold ? std::optional(asSpelled(file)) : std::nullopt;
    }
    const fs::path real = fs::canonical(file, fault);
    if (!fault) return real;
    return look(file).presence == Presence::notThere ? std::optional(file) : std::nullopt;
  }

  std::optional<std::vector<fs::path>> names(const fs::path& folder) override {
    std::vector<fs::path> found;
    std::error_code fault;
    fs::directory_iterator entry(folder, fault);
    for (const fs::directory_iterator end; !fault && entry != end; entry.increment(fault))
      found.push_back(entry->path().filename());
    if (!fault || presence(folder) == Presence::notThere) return found;
    return std::nullopt;
  }

  std::unique_ptr<FolderLock> lock(const fs::path& folder) override {
    constexpr DWORD kPatience = 5000;
    const HANDLE mutex = CreateMutexW(nullptr, FALSE, mutexName(folder).c_str());
    if (mutex == nullptr) return std::make_unique<WindowsLock>(nullptr);
    const DWORD answer = WaitForSingleObject(mutex, kPatience);
    // A program that ended while it held the lock has left whole files: old or new.
    if (answer == WAIT_OBJECT_0 || answer == WAIT_ABANDONED)
      return std::make_unique<WindowsLock>(mutex);
    CloseHandle(mutex);
    return nullptr;
  }

  std::unique_ptr<InputFile> open(const fs::path& file) override {
    constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    Handle handle(CreateFileW(file.c_str(), GENERIC_READ, kShared, nullptr, OPEN_EXISTING,
                              FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!handle.isOpen() || GetFileType(handle.get()) != FILE_TYPE_DISK) return nullptr;
    return std::make_unique<WindowsInput>(std::move(handle));
  }

  std::unique_ptr<OutputFile> create(const fs::path& file, const fs::path& replaced) override {
    if (presence(replaced) == Presence::unknown || isProtected(replaced)) return nullptr;
    // Permissions are taken over by ReplaceFileW.
    Handle handle(CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!handle.isOpen()) return nullptr;
    return std::make_unique<WindowsOutput>(std::move(handle));
  }

  bool keepAs(const fs::path& file, const fs::path& secondName) override {
    if (CreateHardLinkW(secondName.c_str(), file.c_str(), nullptr) != 0) return true;
    return GetLastError() != ERROR_ALREADY_EXISTS && copy(file, secondName);
  }

  bool moveOver(const fs::path& file, const fs::path& target) override {
    if (ReplaceFileW(target.c_str(), file.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS,
                     nullptr, nullptr) != 0)
      return true;
    // There is nothing to replace yet, or the disk's format does not know the call.
    return MoveFileExW(file.c_str(), target.c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
  }

  bool moveToNew(const fs::path& file, const fs::path& target) override {
    return MoveFileExW(file.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH) != 0;
  }

  bool remove(const fs::path& file) override { return DeleteFileW(file.c_str()) != 0; }

  // Windows has no such call; the names of finished files go to its journal.
  void syncFolder(const fs::path&) override {}

 private:
  // For disks whose format knows no second name of a file.
  bool copy(const fs::path& from, const fs::path& to) {
    if (CopyFileW(from.c_str(), to.c_str(), TRUE) == 0) return false;
    const Handle handle(CreateFileW(to.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
    if (handle.isOpen() && FlushFileBuffers(handle.get()) != 0) return true;
    remove(to);
    return false;
  }
};

}  // namespace

FileSystem& systemFiles() {
  static WindowsFiles files;
  return files;
}

}  // namespace odmiennik::disk
