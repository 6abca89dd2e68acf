#include "memory/disk_file.h"

#include <windows.h>

#include <io.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "memory/source_error.h"
#include "memory/windows/windows_file.h"

namespace brimwork {
namespace {

using windows::OpenFile;
using windows::TemporaryFile;

/// done: what was to be done with the file.
void RequireRegularFile(const OpenFile& file, const std::string& path, const std::string& done) {
  // A device has no information of a file.
  if (GetFileType(file.Handle()) != FILE_TYPE_DISK) {
    throw SourceError(path, "this is no regular file; only regular files can be " + done);
  }
  if ((windows::InformationOf(file, path).dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
    throw SourceError(path, "this is a folder; name a file");
  }
}

/// The file behind a path's links.
std::string BehindLinks(const std::string& path) {
  const OpenFile file = windows::OpenExisting(path, FILE_READ_ATTRIBUTES);
  std::wstring name(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length =
        GetFinalPathNameByHandleW(file.Handle(), name.data(), static_cast<DWORD>(name.size()), 0);
    if (length == 0) windows::ThrowSystemError(path, "cannot find where it lies");
    const bool fits = length < name.size();
    name.resize(length);
    if (fits) return windows::Narrow(name);
  }
}

BY_HANDLE_FILE_INFORMATION InformationAt(const std::string& path) {
  return windows::InformationOf(windows::OpenExisting(path, FILE_READ_ATTRIBUTES), path);
}

void RequireUnchanged(const std::string& target, const FileSnapshot& snapshot,
                      const std::string& path) {
  if (windows::SnapshotOf(InformationAt(target)) == snapshot) return;
  throw SourceError(path,
                    "the file was changed by someone else since it was read; it was left as "
                    "it is now, run again");
}

void RequireWritable(const BY_HANDLE_FILE_INFORMATION& information, const std::string& path) {
  if ((information.dwFileAttributes & FILE_ATTRIBUTE_READONLY) == 0) return;
  throw SourceError(path, "the file is read-only; it was left as it is");
}

void CopyContent(const std::string& source, const std::string& target, const std::string& path) {
  const OpenFile from = windows::OpenExisting(source, GENERIC_READ);
  const OpenFile to = windows::OpenExisting(target, GENERIC_WRITE);
  const FileSnapshot snapshot = windows::SnapshotOf(windows::InformationOf(from, source));
  windows::Write(to, windows::ReadBytes(from, snapshot.size, source), path);
  if (!SetEndOfFile(to.Handle())) windows::ThrowSystemError(path, "truncate");
  windows::Flush(to, path);
}

/// Replacing would part the file from its other names, so its content is changed in place, under
/// the cover of a copy of the old content.
void RewriteInPlace(TemporaryFile& content, const std::string& target) {
  TemporaryFile backup(windows::FolderOf(target));
  backup.Close();
  content.Close();
  CopyContent(target, backup.Path(), backup.Path());
  try {
    CopyContent(content.Path(), target, target);
  } catch (const SourceError& error) {
    try {
      CopyContent(backup.Path(), target, target);
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
  const OpenFile file = windows::OpenExisting(path, GENERIC_READ);
  RequireRegularFile(file, path, "read");
  const FileSnapshot before = windows::SnapshotOf(windows::InformationOf(file, path));
  FileContent content{windows::ReadBytes(file, before.size, path), before};
  const FileSnapshot after = windows::SnapshotOf(windows::InformationOf(file, path));
  if (content.bytes.size() == before.size && after == before) return content;
  throw SourceError(
      path, "the file changed while it was being read; try again when nothing writes to it");
}

std::optional<FileSnapshot> LookAtFile(const std::string& path) {
  if (GetFileAttributesW(windows::Wide(path).c_str()) == INVALID_FILE_ATTRIBUTES) {
    const DWORD error = GetLastError();
    if (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND) return std::nullopt;
    windows::ThrowSystemError(path, "cannot look at the file");
  }
  const OpenFile file = windows::OpenExisting(path, FILE_READ_ATTRIBUTES);
  RequireRegularFile(file, path, "replaced");
  return windows::SnapshotOf(windows::InformationOf(file, path));
}

void WriteWholeFile(const std::string& path, const FileSnapshot& snapshot,
                    const FileComposer& compose) {
  const std::string target = BehindLinks(path);
  RequireUnchanged(target, snapshot, path);
  const BY_HANDLE_FILE_INFORMATION information = InformationAt(target);
  RequireWritable(information, path);

  TemporaryFile content(windows::FolderOf(target));
  compose([&](std::string_view bytes) { windows::Write(content.File(), bytes, path); });
  windows::Flush(content.File(), path);
  RequireUnchanged(target, snapshot, path);
  if (information.nNumberOfLinks > 1) {
    RewriteInPlace(content, target);
  } else {
    content.Replace(target);
  }
}

void CreateWholeFile(const std::string& path, const FileComposer& compose) {
  TemporaryFile content(windows::FolderOf(path));
  compose([&](std::string_view bytes) { windows::Write(content.File(), bytes, path); });
  windows::Flush(content.File(), path);
  if (!content.MoveToFree(path)) {
    throw SourceError(path, "there is a file of that name by now; it was left as it is");
  }
}

void WriteAll(int descriptor, std::string_view bytes, const std::string& name) {
  constexpr std::size_t kMostAtOnce = 16 * 1024 * 1024;
  while (!bytes.empty()) {
    const auto size = static_cast<unsigned>(std::min(bytes.size(), kMostAtOnce));
    const int count = _write(descriptor, bytes.data(), size);
    if (count < 0) throw SourceError(name, std::string("write: ") + std::strerror(errno));
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

}  // namespace brimwork
