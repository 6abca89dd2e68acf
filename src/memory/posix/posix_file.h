// Open files on a POSIX system, for the few sources that read and write them.
#pragma once

#include <sys/stat.h>

#include <string>
#include <string_view>

#include "memory/disk_file.h"

namespace brimwork::posix {

/// Throws SourceError "path: call: the system's words" for errno.
[[noreturn]] void ThrowSystemError(const std::string& path, const std::string& call);

class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(other.number_) { other.number_ = -1; }
  Descriptor& operator=(Descriptor&&) = delete;
  ~Descriptor();

  int Number() const { return number_; }
  bool IsOpen() const { return number_ >= 0; }

 private:
  int number_;
};

Descriptor Open(const std::string& path, int flags);

struct stat StatusOf(const std::string& path);
struct stat StatusOf(const Descriptor& file, const std::string& path);
FileSnapshot SnapshotOf(const struct stat& status);

/// Makes target's content that of source, which may be longer or shorter. Takes the room that it
/// needs before it changes a byte. path names target in the error.
void CopyContent(const Descriptor& source, const Descriptor& target, const std::string& path);

/// Waits until the file's bytes are on the disk.
void Flush(const Descriptor& file, const std::string& path);

/// Waits, where the file system can, until a folder's changed entries are on the disk.
void FlushFolder(const std::string& folder);

}  // namespace brimwork::posix
