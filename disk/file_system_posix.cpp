// SPDX-License-Identifier: GPL-3.0-or-later
// Files by the calls of POSIX systems.
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <thread>
#include <utility>

#include "disk/file_system.h"

namespace odmiennik::disk {
namespace {

namespace fs = std::filesystem;

// A descriptor that is closed with its owner.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(other.number_) { other.number_ = -1; }
  Descriptor& operator=(Descriptor&&) = delete;
  ~Descriptor() { close(); }

  [[nodiscard]] bool isOpen() const { return number_ >= 0; }
  [[nodiscard]] int number() const { return number_; }
  bool close() {
    const int closing = number_;
    number_ = -1;
    return closing < 0 || ::close(closing) == 0;
  }

 private:
  int number_;
};

bool flushToDisk(int descriptor) {
#ifdef F_FULLFSYNC
  // There fsync leaves the bytes in the drive's own memory.
  if (::fcntl(descriptor, F_FULLFSYNC) == 0) return true;
#endif
  return ::fsync(descriptor) == 0;
}

class PosixInput final : public InputFile {
 public:
  explicit PosixInput(Descriptor file) : file_(std::move(file)) {}

  std::ptrdiff_t read(char* buffer, std::size_t size) override {
    ssize_t got;
    do got = ::read(file_.number(), buffer, size);
    while (got < 0 && errno == EINTR);
    return got;
  }

  bool skip(std::uint64_t count) override {
    return ::lseek(file_.number(), static_cast<off_t>(count), SEEK_CUR) >= 0;
  }

 private:
  Descriptor file_;
};

class PosixOutput final : public OutputFile {
 public:
  explicit PosixOutput(Descriptor file) : file_(std::move(file)) {}

  bool write(std::string_view bytes) override {
    while (!bytes.empty()) {
      const ssize_t put = ::write(file_.number(), bytes.data(), bytes.size());
      if (put < 0 && errno != EINTR) return false;
      if (put > 0) bytes.remove_prefix(static_cast<std::size_t>(put));
    }
    return true;
  }

  bool finish() override {
    const bool isFlushed = flushToDisk(file_.number());
    return file_.close() && isFlushed;
  }

 private:
  Descriptor file_;
};

// The new file takes over who may read and write it; whose it is only where the system lets us.
bool takeOverPermissions(int descriptor, const struct stat& replaced) {
  if (::fchown(descriptor, replaced.st_uid, replaced.st_gid) != 0 && errno != EPERM) return false;
  return ::fchmod(descriptor, replaced.st_mode & 07777) == 0 || errno == EPERM;
}

// The only two answers that mean that there is nothing.
Presence presenceAfter(int result) {
  if (result == 0) return Presence::there;
  return errno == ENOENT || errno == ENOTDIR ? Presence::notThere : Presence::unknown;
}

FileStamp stampOf(const struct stat& status) {
#ifdef __APPLE__
  const timespec& changed = status.st_mtimespec;
#else
  const timespec& changed = status.st_mtim;
#endif
  constexpr std::int64_t kNanoseconds = 1'000'000'000;
  return {static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino),
          static_cast<std::uint64_t>(status.st_size),
          static_cast<std::int64_t>(changed.tv_sec) * kNanoseconds + changed.tv_nsec};
}

// A lock of the folder itself leaves no file behind; the system takes it back with the descriptor.
class PosixLock final : public FolderLock {
 public:
  explicit PosixLock(Descriptor folder) : folder_(std::move(folder)) {}

 private:
  Descriptor folder_;
};

class PosixFiles final : public FileSystem {
 public:
  // Writing past the limit for the size of files is to fail like any other write: by default the
  // signal ends the program.
  PosixFiles() { std::signal(SIGXFSZ, SIG_IGN); }

  Presence presence(const fs::path& name) override {
    struct stat status {};
    return presenceAfter(::lstat(name.c_str(), &status));
  }

  FileLook look(const fs::path& file) override {
    struct stat status {};
    const Presence presence = presenceAfter(::stat(file.c_str(), &status));
    return presence == Presence::there ? FileLook{presence, stampOf(status)}
                                       : FileLook{presence, {}};
  }

  std::optional<fs::path> realFile(const fs::path& file) override {
    struct stat status {};
    const Presence own = presenceAfter(::lstat(file.c_str(), &status));
    if (own == Presence::unknown) return std::nullopt;
    if (own == Presence::notThere || !S_ISLNK(status.st_mode)) return file;
    const std::unique_ptr<char, void (*)(void*)> real(::realpath(file.c_str(), nullptr), std::free);
    if (real) return fs::path(real.get());
    return errno == ENOENT || errno == ENOTDIR ? std::optional(file) : std::nullopt;
  }

  std::optional<std::vector<fs::path>> names(const fs::path& folder) override {
    const std::unique_ptr<DIR, int (*)(DIR*)> open(::opendir(folder.c_str()), ::closedir);
    std::vector<fs::path> found;
    if (!open) return errno == ENOENT || errno == ENOTDIR ? std::optional(found) : std::nullopt;
    errno = 0;
    while (const dirent* entry = ::readdir(open.get())) {
      found.emplace_back(entry->d_name);
      errno = 0;
    }
    return errno == 0 ? std::optional(std::move(found)) : std::nullopt;
  }

  std::unique_ptr<FolderLock> lock(const fs::path& folder) override {
    constexpr auto kPause = std::chrono::milliseconds(10);
    constexpr int kTries = 500;
    Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    for (int tries = 0; descriptor.isOpen() && tries < kTries; ++tries) {
      if (::flock(descriptor.number(), LOCK_EX | LOCK_NB) == 0) break;
      if (errno != EWOULDBLOCK && errno != EINTR) break;  // a disk without locks
      if (tries + 1 == kTries) return nullptr;
      if (errno == EWOULDBLOCK) std::this_thread::sleep_for(kPause);
    }
    return std::make_unique<PosixLock>(std::move(descriptor));
  }

  std::unique_ptr<InputFile> open(const fs::path& file) override {
    // Not blocking, since opening a pipe would wait for its writer.
    Descriptor descriptor(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status {};
    if (!descriptor.isOpen() || ::fstat(descriptor.number(), &status) != 0) return nullptr;
    if (!S_ISREG(status.st_mode)) return nullptr;
    return std::make_unique<PosixInput>(std::move(descriptor));
  }

  std::unique_ptr<OutputFile> create(const fs::path& file, const fs::path& replaced) override {
    struct stat status {};
    const Presence presence = presenceAfter(::stat(replaced.c_str(), &status));
    if (presence == Presence::unknown) return nullptr;
    const bool isReplacing = presence == Presence::there;
    // Swapping in needs no right to the file itself: it is asked for, so that a file that its
    // owner has made read-only stays as it is.
    if (isReplacing && (!S_ISREG(status.st_mode) || ::access(replaced.c_str(), W_OK) != 0))
      return nullptr;
    Descriptor descriptor(::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!descriptor.isOpen()) return nullptr;
    if (isReplacing && !takeOverPermissions(descriptor.number(), status)) {
      remove(file);
      return nullptr;
    }
    return std::make_unique<PosixOutput>(std::move(descriptor));
  }

  bool keepAs(const fs::path& file, const fs::path& secondName) override {
    if (::link(file.c_str(), secondName.c_str()) == 0) return true;
    return errno != EEXIST && copy(file, secondName);
  }

  bool moveOver(const fs::path& file, const fs::path& target) override {
    return ::rename(file.c_str(), target.c_str()) == 0;
  }

  bool moveToNew(const fs::path& file, const fs::path& target) override {
#ifdef __linux__
    if (::renameat2(AT_FDCWD, file.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0)
      return true;
    if (errno != EINVAL && errno != ENOSYS) return false;
#endif
    // A second name is refused where one stands; the first then goes.
    if (::link(file.c_str(), target.c_str()) == 0) {
      ::unlink(file.c_str());
      return true;
    }
    const bool hasNoLinks = errno == EPERM || errno == EOPNOTSUPP || errno == ENOSYS;
    return hasNoLinks && presence(target) == Presence::notThere && moveOver(file, target);
  }

  bool remove(const fs::path& file) override { return ::unlink(file.c_str()) == 0; }

  void syncFolder(const fs::path& folder) override {
    const Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.isOpen()) flushToDisk(descriptor.number());
  }

 private:
  // For disks whose format knows no second name of a file.
  bool copy(const fs::path& from, const fs::path& to) {
    const auto source = open(from);
    const auto target = source ? create(to, from) : nullptr;
    if (!target) return false;
    char buffer[65536];
    std::ptrdiff_t got = 0;
    bool isWritten = true;
    while (isWritten && (got = source->read(buffer, sizeof buffer)) > 0)
      isWritten = target->write({buffer, static_cast<std::size_t>(got)});
    if (isWritten && got == 0 && target->finish()) return true;
    remove(to);
    return false;
  }
};

}  // namespace

FileSystem& systemFiles() {
  static PosixFiles files;
  return files;
}

}  // namespace odmiennik::disk
