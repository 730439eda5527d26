// Files by the calls of POSIX systems.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "dictionary/file_system.h"

namespace odmiennik::dictionary {
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

class PosixFiles final : public FileSystem {
 public:
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
    const bool isReplacing = ::stat(replaced.c_str(), &status) == 0;
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

}  // namespace odmiennik::dictionary
