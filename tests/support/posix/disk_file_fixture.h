// Files of a test's own that are read and written whole.
#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>

#include "memory/disk_file.h"
#include "memory/source_error.h"
#include "support/temporary_folder.h"

namespace brimwork {

inline constexpr const char* kNoError = "no error";

inline std::string ErrorOf(const std::function<void()>& call) {
  try {
    call();
  } catch (const SourceError& error) {
    return error.what();
  }
  return kNoError;
}

inline FileComposer Writing(std::string bytes) {
  return [bytes = std::move(bytes)](const ByteSink& sink) { sink(bytes); };
}

/// Runs call without root's rights, for root may read and write everything.
inline void AsNobody(const std::function<void()>& call) {
  const bool isRoot = geteuid() == 0;
  if (isRoot && seteuid(65534) != 0) throw std::runtime_error("seteuid");
  call();
  if (isRoot && seteuid(0) != 0) throw std::runtime_error("seteuid");
}

class DiskFileFixture : public testing::Test {
 protected:
  DiskFileFixture() { std::filesystem::permissions(folder_.Path(), std::filesystem::perms::all); }

  std::string Write(const std::string& name, const std::string& bytes) {
    WriteBytes(folder_ / name, bytes);
    return In(name);
  }
  std::string In(const std::string& name) { return (folder_ / name).string(); }

  int EntriesInFolder() {
    int entries = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder_.Path()))
      ++entries;
    return entries;
  }

  static mode_t ModeOf(const std::string& path) {
    struct stat status;
    if (stat(path.c_str(), &status) != 0) throw std::runtime_error("stat");
    return status.st_mode & 07777;
  }

  TemporaryFolder folder_;
};

}  // namespace brimwork
