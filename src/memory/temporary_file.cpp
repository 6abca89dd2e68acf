#include "memory/temporary_file.h"

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <utility>

namespace brimwork::posix {
namespace {

constexpr const char* kNamePrefix = "/.brimwork-";

/// The system's own name for an open file, through which a file without a name gets one.
std::string OpenFilePath(const Descriptor& file) {
  return "/proc/self/fd/" + std::to_string(file.Number());
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

TemporaryFile TemporaryFile::Unnamed(const std::string& folder) {
#ifdef O_TMPFILE
  Descriptor file(open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600));
  if (file.IsOpen() && access(OpenFilePath(file).c_str(), F_OK) == 0)
    return {std::move(file), folder, ""};
#endif
  return Named(folder);
}

TemporaryFile TemporaryFile::Named(const std::string& folder) {
  std::string path = folder + kNamePrefix + "XXXXXX";
  Descriptor file(mkostemp(path.data(), O_CLOEXEC));
  if (!file.IsOpen()) ThrowSystemError(folder, "cannot make a temporary file in this folder");
  return {std::move(file), folder, std::move(path)};
}

void TemporaryFile::MoveTo(const std::string& target) {
  if (path_.empty()) TakeName();
  if (rename(path_.c_str(), target.c_str()) != 0) ThrowSystemError(target, "rename");
  path_.clear();
  FlushFolder(folder_);
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
