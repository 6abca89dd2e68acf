// A small file that several processes read and replace: read whole, replaced whole in one step,
// and guarded by a lock while it is being changed. Failures throw std::system_error; its text says
// what failed and why, without the file's name.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace brimwork {

/// The file behind a path's links, whether or not it exists.
std::filesystem::path FollowLinks(const std::filesystem::path& path);

/// The file's bytes; nothing when there is no such file.
std::optional<std::string> ReadSharedFile(const std::filesystem::path& path);

/// Puts content in the file's place: whoever reads it sees the old bytes or the new ones, also
/// after a crash. Permissions are kept; a new file is for its user alone. path is no link.
void ReplaceSharedFile(const std::filesystem::path& path, std::string_view content);

/// Keeps every other process and thread that locks the same path waiting for its life. The lock is
/// an empty file beside the shared one, for the shared one itself is replaced; it stays there.
class SharedFileLock {
 public:
  explicit SharedFileLock(const std::filesystem::path& path);
  ~SharedFileLock();
  SharedFileLock(const SharedFileLock&) = delete;
  SharedFileLock& operator=(const SharedFileLock&) = delete;

 private:
  std::intptr_t lock_ = -1;  // what the system calls the open lock file
};

}  // namespace brimwork
