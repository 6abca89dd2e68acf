#include "memory/shared_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <iterator>
#include <system_error>

namespace brimwork {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kForItsUserOnly = 0600;

[[noreturn]] void Fail(const char* what, int error = errno) {
  throw std::system_error(error, std::generic_category(), what);
}

class Descriptor {
 public:
  explicit Descriptor(int value) : value_(value) {}
  ~Descriptor() {
    if (value_ >= 0) ::close(value_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int Get() const { return value_; }

 private:
  int value_;
};

/// The new bytes under a name of their own, removed again unless they took the file's place.
class TemporaryFile {
 public:
  explicit TemporaryFile(const fs::path& target)
      : name_(target.string() + ".XXXXXX"), file_(::mkostemp(name_.data(), O_CLOEXEC)) {
    if (file_.Get() < 0) Fail("cannot be written: no temporary file beside it");
  }
  ~TemporaryFile() {
    if (!placed_) ::unlink(name_.c_str());
  }

  void Write(std::string_view content) {
    while (!content.empty()) {
      const ssize_t written = ::write(file_.Get(), content.data(), content.size());
      if (written < 0 && errno == EINTR) continue;
      if (written < 0) Fail("cannot be written");
      content.remove_prefix(static_cast<std::size_t>(written));
    }
  }

  /// The owner can be kept only where the system lets this user give files away.
  void TakeOwnerAndPermissions(const fs::path& target) {
    struct stat old {};
    const bool exists = ::stat(target.c_str(), &old) == 0;
    if (exists && ::fchown(file_.Get(), old.st_uid, old.st_gid) != 0 && errno != EPERM)
      Fail("cannot be written: its owner cannot be kept");
    if (::fchmod(file_.Get(), exists ? old.st_mode & 07777 : kForItsUserOnly) != 0)
      Fail("cannot be written: its permissions cannot be kept");
  }

  void TakePlaceOf(const fs::path& target) {
    if (::fsync(file_.Get()) != 0) Fail("cannot be written to the disk");
    if (::rename(name_.c_str(), target.c_str()) != 0) Fail("cannot be replaced");
    placed_ = true;
  }

 private:
  std::string name_;
  Descriptor file_;
  bool placed_ = false;
};

fs::path FolderOf(const fs::path& path) {
  return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

/// Some file systems cannot sync a folder; the file itself is safe by then.
void SyncFolder(const fs::path& folder) {
  const Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (descriptor.Get() >= 0) ::fsync(descriptor.Get());
}

}  // namespace

fs::path FollowLinks(const fs::path& path) {
  constexpr int kMostLinks = 40;
  fs::path target = path;
  std::error_code ignored;
  for (int followed = 0; fs::is_symlink(fs::symlink_status(target, ignored)); ++followed) {
    if (followed == kMostLinks) Fail("cannot be found", ELOOP);
    target = FolderOf(target) / fs::read_symlink(target);
  }
  return target;
}

std::optional<std::string> ReadSharedFile(const fs::path& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (status.type() == fs::file_type::not_found) return std::nullopt;
  if (error) Fail("cannot be read", error.value());
  if (status.type() == fs::file_type::directory) Fail("cannot be read", EISDIR);
  if (status.type() != fs::file_type::regular) Fail("cannot be read: it is no plain file", EINVAL);
  std::ifstream file(path, std::ios::binary);
  if (!file) Fail("cannot be read");
  std::string content(std::istreambuf_iterator<char>(file), {});
  if (file.bad()) Fail("cannot be read");
  return content;
}

void ReplaceSharedFile(const fs::path& path, std::string_view content) {
  if (::access(path.c_str(), W_OK) != 0 && errno != ENOENT) Fail("cannot be written");
  TemporaryFile temporary(path);
  temporary.Write(content);
  temporary.TakeOwnerAndPermissions(path);
  temporary.TakePlaceOf(path);
  SyncFolder(FolderOf(path));
}

SharedFileLock::SharedFileLock(const fs::path& path) {
  const std::string name = path.string() + ".lock";
  const int descriptor = ::open(name.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, kForItsUserOnly);
  if (descriptor < 0) Fail("cannot be locked: no lock file beside it");
  lock_ = descriptor;
  while (::flock(descriptor, LOCK_EX) != 0) {
    if (errno == EINTR) continue;
    const int error = errno;
    ::close(descriptor);
    Fail("cannot be locked", error);
  }
}

SharedFileLock::~SharedFileLock() { ::close(static_cast<int>(lock_)); }

}  // namespace brimwork
