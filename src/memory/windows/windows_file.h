// Open files on Windows, for the few sources that read and write them.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <utility>

#include "memory/disk_file.h"
#include "memory/source_error.h"
#include "win32/wide_text.h"

namespace brimwork::windows {

using win32::Narrow;
using win32::SystemWords;
using win32::Wide;

/// A call of the system that failed: "path: call: the system's words", or that another program is
/// in the way.
class SystemError : public SourceError {
 public:
  SystemError(const std::string& path, const std::string& call, DWORD code);
  DWORD Code() const { return code_; }

 private:
  DWORD code_;
};

/// Throws SystemError for the last error.
[[noreturn]] void ThrowSystemError(const std::string& path, const std::string& call);

class OpenFile {
 public:
  explicit OpenFile(HANDLE handle) : handle_(handle) {}
  OpenFile(OpenFile&& other) noexcept : handle_(other.handle_) {
    other.handle_ = INVALID_HANDLE_VALUE;
  }
  OpenFile& operator=(OpenFile&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~OpenFile() { Close(); }

  HANDLE Handle() const { return handle_; }
  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  void Close();

 private:
  HANDLE handle_;
};

/// Opens what is there; others may read, write and remove it meanwhile.
OpenFile OpenExisting(const std::string& path, DWORD access);

BY_HANDLE_FILE_INFORMATION InformationOf(const OpenFile& file, const std::string& path);
FileSnapshot SnapshotOf(const BY_HANDLE_FILE_INFORMATION& information);

/// size bytes, or fewer when the file has become shorter; one byte more when it has become longer.
/// Throws SourceError, naming path, when they cannot be read.
std::string ReadBytes(const OpenFile& file, std::uint64_t size, const std::string& path);

/// Throws SourceError, naming path, when a byte cannot be written.
void Write(const OpenFile& file, std::string_view bytes, const std::string& path);

/// Waits until the file's bytes are on the disk.
void Flush(const OpenFile& file, const std::string& path);

/// The part of a path in front of its last separator, "." when there is none.
std::string FolderOf(const std::string& path);

/// A file that comes into being beside the one it will replace, and leaves nothing behind when it
/// does not get that far.
class TemporaryFile {
 public:
  /// With a name of its own in folder.
  explicit TemporaryFile(const std::string& folder);
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  const OpenFile& File() const { return file_; }
  void Close() { file_.Close(); }
  const std::string& Path() const { return path_; }

  /// Replaces target, which is in the same folder. Its attributes stay.
  void Replace(const std::string& target);

  /// Gives it the name target in one step, whether or not something has that name. Returns the
  /// system's error; both are as they were then.
  DWORD MoveOver(const std::string& target);

  /// Gives it the name target; false, and target is as it was, when something has that name.
  bool MoveToFree(const std::string& target);

  /// Leaves the file where it is.
  void Keep() { path_.clear(); }

 private:
  std::string path_;
  OpenFile file_;
};

}  // namespace brimwork::windows
