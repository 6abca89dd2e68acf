// Files of a test's own, with the permissions and users of POSIX systems.
#pragma once

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>

#include "support/disk_file_fixture.h"

namespace brimwork {

/// Runs call without root's rights, for root may read and write everything.
inline void AsNobody(const std::function<void()>& call) {
  const bool isRoot = geteuid() == 0;
  if (isRoot && seteuid(65534) != 0) throw std::runtime_error("seteuid");
  call();
  if (isRoot && seteuid(0) != 0) throw std::runtime_error("seteuid");
}

class PosixFileFixture : public DiskFileFixture {
 protected:
  PosixFileFixture() { std::filesystem::permissions(folder_.Path(), std::filesystem::perms::all); }

  static mode_t ModeOf(const std::string& path) {
    struct stat status;
    if (stat(path.c_str(), &status) != 0) throw std::runtime_error("stat");
    return status.st_mode & 07777;
  }
};

}  // namespace brimwork
