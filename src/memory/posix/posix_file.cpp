#include "memory/posix/posix_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <memory>

#include "memory/source_error.h"

namespace brimwork::posix {
namespace {

constexpr std::size_t kCopyBytes = 1024 * 1024;

}  // namespace

void ThrowSystemError(const std::string& path, const std::string& call) {
  throw SourceError(path, call + ": " + std::strerror(errno));
}

Descriptor::~Descriptor() {
  if (IsOpen()) close(number_);
}

Descriptor Open(const std::string& path, int flags) {
  Descriptor file(open(path.c_str(), flags | O_CLOEXEC));
  if (!file.IsOpen()) ThrowSystemError(path, "open");
  return file;
}

struct stat StatusOf(const std::string& path) {
  struct stat status;
  if (stat(path.c_str(), &status) != 0) ThrowSystemError(path, "stat");
  return status;
}

struct stat StatusOf(const Descriptor& file, const std::string& path) {
  struct stat status;
  if (fstat(file.Number(), &status) != 0) ThrowSystemError(path, "fstat");
  return status;
}

FileSnapshot SnapshotOf(const struct stat& status) {
  constexpr std::int64_t kNanosecondsPerSecond = 1'000'000'000;
  return {status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
          status.st_mtim.tv_sec * kNanosecondsPerSecond + status.st_mtim.tv_nsec};
}

void CopyContent(const Descriptor& source, const Descriptor& target, const std::string& path) {
  const off_t size = StatusOf(source, path).st_size;
  if (size > StatusOf(target, path).st_size) {
    const int error = posix_fallocate(target.Number(), 0, size);
    if (error != 0) {
      errno = error;
      ThrowSystemError(path, "fallocate");
    }
  }
  if (lseek(source.Number(), 0, SEEK_SET) < 0 || lseek(target.Number(), 0, SEEK_SET) < 0)
    ThrowSystemError(path, "lseek");
  const auto buffer = std::make_unique<char[]>(kCopyBytes);
  for (;;) {
    const ssize_t count = read(source.Number(), buffer.get(), kCopyBytes);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) ThrowSystemError(path, "read");
    if (count == 0) break;
    WriteAll(target.Number(), {buffer.get(), static_cast<std::size_t>(count)}, path);
  }
  if (ftruncate(target.Number(), size) != 0) ThrowSystemError(path, "ftruncate");
}

void Flush(const Descriptor& file, const std::string& path) {
  if (fsync(file.Number()) != 0) ThrowSystemError(path, "fsync");
}

void FlushFolder(const std::string& folder) {
  const Descriptor opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  // A folder that may be searched but not listed, or a file system without this call: the new file
  // itself is safe on the disk already.
  if (opened.IsOpen()) fsync(opened.Number());
}

}  // namespace brimwork::posix
