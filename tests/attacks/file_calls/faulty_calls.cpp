// SPDX-License-Identifier: GPL-3.0-or-later
// Stands between a program and the file calls of the system (LD_PRELOAD): counts and writes down
// those below one folder, and as ordered ends the program before one of them, lets it fail, or has
// it do a part of its work only.
//
// The orders lie in a file of their own that is mapped into memory, so that they can be changed
// while the program runs; orders.py writes them.
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

enum Mode : std::uint32_t { kCount, kEnd, kFail, kShorten };

// The same layout as in orders.py.
struct Orders {
  std::atomic<std::uint32_t> mode;
  std::atomic<std::uint32_t> point;  // the first call that is struck, from 1
  std::atomic<std::uint32_t> times;  // how many are struck in a row
  std::atomic<std::int32_t> value;   // an errno, or the most bytes that a call moves; 0 for half
  std::atomic<std::uint32_t> calls;  // counted so far
  std::atomic<std::uint32_t> struck;
  std::uint32_t folderLength;
  char folder[1000];
  char log[1000];  // where the calls are written down; empty for nowhere
};

Orders* openOrders() {
  const char* name = std::getenv("FILE_CALL_ORDERS");
  const long file = name == nullptr ? -1 : syscall(SYS_openat, AT_FDCWD, name, O_RDWR | O_CLOEXEC);
  if (file < 0) std::abort();
  void* memory =
      mmap(nullptr, sizeof(Orders), PROT_READ | PROT_WRITE, MAP_SHARED, static_cast<int>(file), 0);
  syscall(SYS_close, file);
  if (memory == MAP_FAILED) std::abort();
  return static_cast<Orders*>(memory);
}

Orders& orders() {
  static Orders* const opened = openOrders();
  return *opened;
}

bool isBelow(const char* path) {
  const Orders& given = orders();
  if (path == nullptr || std::strncmp(path, given.folder, given.folderLength) != 0) return false;
  const char behind = path[given.folderLength];
  return behind == '\0' || behind == '/';
}

// The descriptors and open folders that belong to names below the folder.
constexpr int kDescriptors = 4096;
std::atomic<bool> isDescriptorBelow[kDescriptors];
std::atomic<DIR*> openFolders[64];

bool isBelow(int descriptor) {
  return descriptor >= 0 && descriptor < kDescriptors && isDescriptorBelow[descriptor];
}

void note(int descriptor, bool isBelowFolder) {
  if (descriptor >= 0 && descriptor < kDescriptors) isDescriptorBelow[descriptor] = isBelowFolder;
}

void note(DIR* opened) {
  for (auto& place : openFolders) {
    DIR* none = nullptr;
    if (place.compare_exchange_strong(none, opened)) return;
  }
}

bool isBelow(const DIR* folder) {
  return std::ranges::any_of(openFolders, [=](const auto& place) { return place == folder; });
}

void forget(const DIR* folder) {
  for (auto& place : openFolders)
    if (place == folder) place = nullptr;
}

void writeDown(const char* call) {
  const Orders& given = orders();
  if (given.log[0] == '\0') return;
  char line[64];
  const int length = std::snprintf(line, sizeof line, "%s\n", call);
  const long file =
      syscall(SYS_openat, AT_FDCWD, given.log, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
  syscall(SYS_write, file, line, static_cast<std::size_t>(length));
  syscall(SYS_close, file);
}

// Counts a call; true when it is the turn of this one. Ends the program where that is ordered.
bool isTurn(const char* call) {
  Orders& given = orders();
  const std::uint32_t number = ++given.calls;
  writeDown(call);
  if (number < given.point || number - given.point >= given.times) return false;
  if (given.mode == kEnd) {
    ++given.struck;
    syscall(SYS_kill, getpid(), SIGKILL);
  }
  return true;
}

// Whether the call has to fail, errno set.
bool isStruck(const char* call, bool isCounted) {
  if (!isCounted || !isTurn(call) || orders().mode != kFail) return false;
  ++orders().struck;
  errno = orders().value;
  return true;
}

// The same for a call that moves bytes, of which it may have to move fewer.
bool isStruck(const char* call, bool isCounted, std::size_t& size) {
  if (!isCounted || !isTurn(call)) return false;
  if (orders().mode == kShorten && size > 1) {
    ++orders().struck;
    const auto most = static_cast<std::size_t>(orders().value.load());
    size = std::min(size, most == 0 ? size / 2 : most);
  }
  if (orders().mode != kFail) return false;
  ++orders().struck;
  errno = orders().value;
  return true;
}

template <typename Function>
Function* next(const char* name) {
  void* found = dlsym(RTLD_NEXT, name);
  if (found == nullptr) std::abort();
  return reinterpret_cast<Function*>(found);
}

// The real call of the same name.
#define REAL(NAME, ...) static auto* const real = next<__VA_ARGS__>(#NAME)

mode_t modeOf(int flags, std::va_list arguments) {
  const bool hasMode = (flags & (O_CREAT | O_TMPFILE)) != 0;
  return hasMode ? va_arg(arguments, mode_t) : 0;
}

int opened(int descriptor, bool isBelowFolder) {
  note(descriptor, isBelowFolder);
  return descriptor;
}

}  // namespace

// Every call that takes a name, then every call that takes what has been opened.
extern "C" {

#define OPEN(NAME)                                     \
  int NAME(const char* path, int flags, ...) {         \
    REAL(NAME, int(const char*, int, ...));            \
    std::va_list rest;                                 \
    va_start(rest, flags);                             \
    const mode_t mode = modeOf(flags, rest);           \
    va_end(rest);                                      \
    const bool isCounted = isBelow(path);              \
    if (isStruck("open", isCounted)) return -1;        \
    return opened(real(path, flags, mode), isCounted); \
  }
OPEN(open)
OPEN(open64)

#define OPENAT(NAME)                                           \
  int NAME(int folder, const char* path, int flags, ...) {     \
    REAL(NAME, int(int, const char*, int, ...));               \
    std::va_list rest;                                         \
    va_start(rest, flags);                                     \
    const mode_t mode = modeOf(flags, rest);                   \
    va_end(rest);                                              \
    const bool isCounted = isBelow(path) || isBelow(folder);   \
    if (isStruck("open", isCounted)) return -1;                \
    return opened(real(folder, path, flags, mode), isCounted); \
  }
OPENAT(openat)
OPENAT(openat64)

#define FOPEN(NAME)                                     \
  FILE* NAME(const char* path, const char* how) {       \
    REAL(NAME, FILE*(const char*, const char*));        \
    const bool isCounted = isBelow(path);               \
    if (isStruck("open", isCounted)) return nullptr;    \
    FILE* file = real(path, how);                       \
    if (file != nullptr) note(fileno(file), isCounted); \
    return file;                                        \
  }
FOPEN(fopen)
FOPEN(fopen64)

#define STAT(NAME, TYPE, CALL)                                      \
  int NAME(const char* path, TYPE* status) noexcept {               \
    REAL(NAME, int(const char*, TYPE*));                            \
    return isStruck(CALL, isBelow(path)) ? -1 : real(path, status); \
  }
STAT(stat, struct stat, "stat")
STAT(stat64, struct stat64, "stat")
STAT(lstat, struct stat, "stat")
STAT(lstat64, struct stat64, "stat")

#define FSTAT(NAME, TYPE)                                                         \
  int NAME(int descriptor, TYPE* status) noexcept {                               \
    REAL(NAME, int(int, TYPE*));                                                  \
    return isStruck("stat", isBelow(descriptor)) ? -1 : real(descriptor, status); \
  }
FSTAT(fstat, struct stat)
FSTAT(fstat64, struct stat64)

#define FSTATAT(NAME, TYPE)                                                      \
  int NAME(int folder, const char* path, TYPE* status, int flags) noexcept {     \
    REAL(NAME, int(int, const char*, TYPE*, int));                               \
    const bool isCounted = isBelow(path) || isBelow(folder);                     \
    return isStruck("stat", isCounted) ? -1 : real(folder, path, status, flags); \
  }
FSTATAT(fstatat, struct stat)
FSTATAT(fstatat64, struct stat64)

int statx(int folder, const char* path, int flags, unsigned mask, struct statx* status) noexcept {
  REAL(statx, int(int, const char*, int, unsigned, struct statx*));
  const bool isCounted = isBelow(path) || isBelow(folder);
  return isStruck("stat", isCounted) ? -1 : real(folder, path, flags, mask, status);
}

int access(const char* path, int rights) noexcept {
  REAL(access, int(const char*, int));
  return isStruck("access", isBelow(path)) ? -1 : real(path, rights);
}

int faccessat(int folder, const char* path, int rights, int flags) noexcept {
  REAL(faccessat, int(int, const char*, int, int));
  return isStruck("access", isBelow(path)) ? -1 : real(folder, path, rights, flags);
}

char* realpath(const char* path, char* resolved) noexcept {
  REAL(realpath, char*(const char*, char*));
  return isStruck("realpath", isBelow(path)) ? nullptr : real(path, resolved);
}

ssize_t readlink(const char* path, char* target, std::size_t size) noexcept {
  REAL(readlink, ssize_t(const char*, char*, std::size_t));
  return isStruck("readlink", isBelow(path)) ? -1 : real(path, target, size);
}

int rename(const char* from, const char* to) noexcept {
  REAL(rename, int(const char*, const char*));
  return isStruck("rename", isBelow(from) || isBelow(to)) ? -1 : real(from, to);
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned flags) noexcept {
  REAL(renameat2, int(int, const char*, int, const char*, unsigned));
  const bool isCounted = isBelow(from) || isBelow(to);
  return isStruck("rename", isCounted) ? -1 : real(fromFolder, from, toFolder, to, flags);
}

int link(const char* from, const char* to) noexcept {
  REAL(link, int(const char*, const char*));
  return isStruck("link", isBelow(from) || isBelow(to)) ? -1 : real(from, to);
}

int unlink(const char* path) noexcept {
  REAL(unlink, int(const char*));
  return isStruck("unlink", isBelow(path)) ? -1 : real(path);
}

int unlinkat(int folder, const char* path, int flags) noexcept {
  REAL(unlinkat, int(int, const char*, int));
  const bool isCounted = isBelow(path) || isBelow(folder);
  return isStruck("unlink", isCounted) ? -1 : real(folder, path, flags);
}

int mkdir(const char* path, mode_t mode) noexcept {
  REAL(mkdir, int(const char*, mode_t));
  return isStruck("mkdir", isBelow(path)) ? -1 : real(path, mode);
}

DIR* opendir(const char* path) {
  REAL(opendir, DIR * (const char*));
  const bool isCounted = isBelow(path);
  if (isStruck("opendir", isCounted)) return nullptr;
  DIR* folder = real(path);
  if (folder != nullptr && isCounted) note(folder);
  return folder;
}

#define READDIR(NAME, TYPE)                                               \
  TYPE* NAME(DIR* folder) {                                               \
    REAL(NAME, TYPE*(DIR*));                                              \
    return isStruck("readdir", isBelow(folder)) ? nullptr : real(folder); \
  }
READDIR(readdir, struct dirent)
READDIR(readdir64, struct dirent64)

// What is closed is closed, whatever the answer.
int closedir(DIR* folder) {
  REAL(closedir, int(DIR*));
  const bool isFailing = isStruck("closedir", isBelow(folder));
  const int error = errno;
  forget(folder);
  const int result = real(folder);
  if (!isFailing) return result;
  errno = error;
  return -1;
}

int close(int descriptor) {
  REAL(close, int(int));
  const bool isFailing = isStruck("close", isBelow(descriptor));
  const int error = errno;
  note(descriptor, false);
  const int result = real(descriptor);
  if (!isFailing) return result;
  errno = error;
  return -1;
}

ssize_t read(int descriptor, void* buffer, std::size_t size) {
  REAL(read, ssize_t(int, void*, std::size_t));
  return isStruck("read", isBelow(descriptor), size) ? -1 : real(descriptor, buffer, size);
}

ssize_t write(int descriptor, const void* buffer, std::size_t size) {
  REAL(write, ssize_t(int, const void*, std::size_t));
  return isStruck("write", isBelow(descriptor), size) ? -1 : real(descriptor, buffer, size);
}

off_t lseek(int descriptor, off_t offset, int from) noexcept {
  REAL(lseek, off_t(int, off_t, int));
  return isStruck("lseek", isBelow(descriptor)) ? -1 : real(descriptor, offset, from);
}

#define ON_DESCRIPTOR(NAME)                                              \
  int NAME(int descriptor) {                                             \
    REAL(NAME, int(int));                                                \
    return isStruck(#NAME, isBelow(descriptor)) ? -1 : real(descriptor); \
  }
ON_DESCRIPTOR(fsync)
ON_DESCRIPTOR(fdatasync)

int fchmod(int descriptor, mode_t mode) noexcept {
  REAL(fchmod, int(int, mode_t));
  return isStruck("fchmod", isBelow(descriptor)) ? -1 : real(descriptor, mode);
}

int fchown(int descriptor, uid_t owner, gid_t group) noexcept {
  REAL(fchown, int(int, uid_t, gid_t));
  return isStruck("fchown", isBelow(descriptor)) ? -1 : real(descriptor, owner, group);
}

int flock(int descriptor, int operation) noexcept {
  REAL(flock, int(int, int));
  return isStruck("flock", isBelow(descriptor)) ? -1 : real(descriptor, operation);
}

}  // extern "C"
