#include "memory/disk_file.h"

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <unistd.h>

#include <cerrno>
#include <memory>

#include "memory/huge_pages.h"
#include "memory/posix/posix_file.h"
#include "memory/posix/temporary_file.h"
#include "memory/source_error.h"

namespace brimwork {
namespace {

using posix::Descriptor;
using posix::TemporaryFile;
using posix::ThrowSystemError;

/// done: what was to be done with the file.
void RequireRegularFile(const struct stat& status, const std::string& path,
                        const std::string& done) {
  if (S_ISDIR(status.st_mode)) throw SourceError(path, "this is a folder; name a file");
  if (!S_ISREG(status.st_mode))
    throw SourceError(path, "this is no regular file; only regular files can be " + done);
}

SourceError ChangedWhileRead(const std::string& path) {
  return {path, "the file changed while it was being read; try again when nothing writes to it"};
}

/// Reads size bytes, or fewer when the file has become shorter; one byte more when it has become
/// longer.
std::string ReadBytes(const Descriptor& file, std::size_t size, const std::string& path) {
  std::string bytes;
  bytes.reserve(size + 1);
  PreferHugePages(bytes.data(), size + 1);
  bytes.resize(size + 1);
  std::size_t have = 0;
  while (have < bytes.size()) {
    const ssize_t count = read(file.Number(), bytes.data() + have, bytes.size() - have);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) ThrowSystemError(path, "read");
    if (count == 0) break;
    have += static_cast<std::size_t>(count);
  }
  bytes.resize(have);
  return bytes;
}

std::string BehindLinks(const std::string& path) {
  const std::unique_ptr<char, decltype(&free)> resolved(realpath(path.c_str(), nullptr), &free);
  if (!resolved) ThrowSystemError(path, "realpath");
  return resolved.get();
}

void RequireUnchanged(const std::string& target, const FileSnapshot& snapshot,
                      const std::string& path) {
  if (posix::SnapshotOf(posix::StatusOf(target)) == snapshot) return;
  throw SourceError(path,
                    "the file was changed by someone else since it was read; it was left as "
                    "it is now, run again");
}

void RequireWritable(const std::string& target, mode_t mode, const std::string& path) {
  constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
  // Root may write to any file, yet a file that nobody may write to is meant to stay.
  if ((mode & kAnyWrite) == 0 || faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0)
    throw SourceError(path, "the file is read-only; it was left as it is");
}

std::string FolderOf(const std::string& path) {
  const auto slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

void TakeOverPermissions(const Descriptor& file, const struct stat& status,
                         const std::string& path) {
  constexpr mode_t kPermissions = S_IRWXU | S_IRWXG | S_IRWXO;
  constexpr mode_t kAllModes = kPermissions | S_ISUID | S_ISGID | S_ISVTX;
  const bool ownerKept = fchown(file.Number(), status.st_uid, status.st_gid) == 0;
  if (!ownerKept && fchown(file.Number(), static_cast<uid_t>(-1), status.st_gid) != 0) {
    // Only the owner may give a file away; then it is the writer's.
  }
  if (fchmod(file.Number(), status.st_mode & (ownerKept ? kAllModes : kPermissions)) != 0)
    ThrowSystemError(path, "fchmod");
}

/// A rename would part the file from its other names, so its content is changed in place, under
/// the cover of a copy of the old content.
void RewriteInPlace(const Descriptor& content, const std::string& target,
                    const std::string& folder) {
  const Descriptor file = posix::Open(target, O_RDWR);
  TemporaryFile backup = TemporaryFile::Named(folder);
  posix::CopyContent(file, backup.File(), backup.Path());
  posix::Flush(backup.File(), backup.Path());
  try {
    posix::CopyContent(content, file, target);
    posix::Flush(file, target);
  } catch (const SourceError& error) {
    try {
      posix::CopyContent(backup.File(), file, target);
      posix::Flush(file, target);
    } catch (const SourceError&) {
      const std::string copy = backup.Path();
      backup.Keep();
      throw SourceError(target, std::string("writing failed (") + error.what() +
                                    "), and so did putting the old bytes back; they are in " +
                                    copy);
    }
    throw;
  }
}

}  // namespace

FileContent ReadWholeFile(const std::string& path) {
  // Looked at before it is opened: opening a pipe would wait, opening a device may do things.
  RequireRegularFile(posix::StatusOf(path), path, "read");
  const Descriptor file = posix::Open(path, O_RDONLY | O_NONBLOCK);
  const struct stat status = posix::StatusOf(file, path);
  RequireRegularFile(status, path, "read");
  FileContent content{ReadBytes(file, static_cast<std::size_t>(status.st_size), path),
                      posix::SnapshotOf(status)};
  const FileSnapshot after = posix::SnapshotOf(posix::StatusOf(file, path));
  if (content.bytes.size() != content.snapshot.size || after != content.snapshot)
    throw ChangedWhileRead(path);
  return content;
}

std::optional<FileSnapshot> LookAtFile(const std::string& path) {
  struct stat link;
  if (lstat(path.c_str(), &link) != 0) {
    if (errno == ENOENT) return std::nullopt;
    ThrowSystemError(path, "lstat");
  }
  const struct stat status = posix::StatusOf(path);
  RequireRegularFile(status, path, "replaced");
  return posix::SnapshotOf(status);
}

void WriteWholeFile(const std::string& path, const FileSnapshot& snapshot,
                    const FileComposer& compose) {
  const std::string target = BehindLinks(path);
  const std::string folder = FolderOf(target);
  RequireUnchanged(target, snapshot, path);
  const struct stat status = posix::StatusOf(target);
  RequireWritable(target, status.st_mode, path);

  TemporaryFile content = TemporaryFile::Unnamed(folder);
  const int descriptor = content.File().Number();
  compose([&](std::string_view bytes) { WriteAll(descriptor, bytes, path); });
  TakeOverPermissions(content.File(), status, path);
  posix::Flush(content.File(), path);
  RequireUnchanged(target, snapshot, path);
  if (status.st_nlink > 1) {
    RewriteInPlace(content.File(), target, folder);
  } else {
    content.MoveTo(target);
  }
}

void CreateWholeFile(const std::string& path, const FileComposer& compose) {
  TemporaryFile content = TemporaryFile::Unnamed(FolderOf(path), posix::kAsNewFilesAre);
  const int descriptor = content.File().Number();
  compose([&](std::string_view bytes) { WriteAll(descriptor, bytes, path); });
  posix::Flush(content.File(), path);
  if (!content.MoveToFree(path)) {
    throw SourceError(path, "there is a file of that name by now; it was left as it is");
  }
}

void WriteAll(int descriptor, std::string_view bytes, const std::string& name) {
  while (!bytes.empty()) {
    const ssize_t count = write(descriptor, bytes.data(), bytes.size());
    if (count >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(count));
    } else if (errno == EAGAIN) {
      pollfd waiting{descriptor, POLLOUT, 0};
      poll(&waiting, 1, -1);
    } else if (errno != EINTR) {
      ThrowSystemError(name, "write");
    }
  }
}

}  // namespace brimwork
