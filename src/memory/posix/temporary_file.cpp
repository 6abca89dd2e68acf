#include "memory/posix/temporary_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <utility>

#include "memory/posix/held_signals.h"

namespace brimwork::posix {
namespace {

constexpr const char* kNamePrefix = "/.brimwork-";

/// The system's own name for an open file, through which a file without a name gets one.
std::string OpenFilePath(const Descriptor& file) {
  return "/proc/self/fd/" + std::to_string(file.Number());
}

/// rename that replaces nothing: fails with EEXIST instead.
int RenameToFree(const std::string& path, const std::string& target) {
#ifdef RENAME_NOREPLACE
  const int renamed = renameat2(AT_FDCWD, path.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE);
  if (renamed == 0 || (errno != EINVAL && errno != ENOSYS)) return renamed;
#endif
  // Not every file system knows that call; those that do not know links do.
  if (link(path.c_str(), target.c_str()) != 0) return -1;
  return unlink(path.c_str());
}

}  // namespace

TemporaryFile::TemporaryFile(Descriptor file, std::string folder, std::string path)
    : file_(std::move(file)), folder_(std::move(folder)), path_(std::move(path)) {}

TemporaryFile::TemporaryFile(TemporaryFile&& other) noexcept
    : file_(std::move(other.file_)),
      folder_(std::move(other.folder_)),
      path_(std::exchange(other.path_, {})) {}

TemporaryFile::~TemporaryFile() {
  if (!path_.empty()) unlink(path_.c_str());
}

TemporaryFile TemporaryFile::Unnamed(const std::string& folder, mode_t mode) {
#ifdef O_TMPFILE
  Descriptor file(open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, mode));
  if (file.IsOpen() && access(OpenFilePath(file).c_str(), F_OK) == 0)
    return {std::move(file), folder, ""};
#endif
  return Named(folder, mode);
}

TemporaryFile TemporaryFile::Named(const std::string& folder, mode_t mode) {
  const std::string own = folder + kNamePrefix + std::to_string(getpid()) + "-";
  for (int attempt = 0;; ++attempt) {
    std::string path = own + std::to_string(attempt);
    Descriptor file(open(path.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, mode));
    if (file.IsOpen()) return {std::move(file), folder, std::move(path)};
    // Another thread's, or left behind by another process of that number.
    if (errno != EEXIST) ThrowSystemError(folder, "cannot make a temporary file in this folder");
  }
}

void TemporaryFile::MoveTo(const std::string& target) {
  {
    const HeldSignals held;  // a process that ended in between would leave the name behind
    if (path_.empty()) TakeName();
    if (rename(path_.c_str(), target.c_str()) != 0) ThrowSystemError(target, "rename");
    path_.clear();
  }
  FlushFolder(folder_);
}

bool TemporaryFile::MoveToFree(const std::string& target) {
  const int moved = path_.empty() ? linkat(AT_FDCWD, OpenFilePath(file_).c_str(), AT_FDCWD,
                                           target.c_str(), AT_SYMLINK_FOLLOW)
                                  : RenameToFree(path_, target);
  if (moved != 0 && errno == EEXIST) return false;
  if (moved != 0) ThrowSystemError(target, "link");
  path_.clear();
  FlushFolder(folder_);
  return true;
}

void TemporaryFile::TakeName() {
  const std::string own =
      folder_ + kNamePrefix + std::to_string(getpid()) + "-" + std::to_string(file_.Number());
  for (int attempt = 0;; ++attempt) {
    const std::string name = own + "-" + std::to_string(attempt);
    if (linkat(AT_FDCWD, OpenFilePath(file_).c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) ==
        0) {
      path_ = name;
      return;
    }
    // Another process of that number may have left the name behind.
    if (errno != EEXIST) ThrowSystemError(folder_, "linkat");
  }
}

}  // namespace brimwork::posix
