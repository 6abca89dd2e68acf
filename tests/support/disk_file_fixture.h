// Files of a test's own that are read and written whole.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

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

class DiskFileFixture : public testing::Test {
 protected:
  std::string Write(const std::string& name, const std::string& bytes) {
    WriteBytes(folder_ / name, bytes);
    return In(name);
  }
  std::string Read(const std::string& name) { return ReadBytes(folder_ / name); }
  std::string In(const std::string& name) { return TextOf(folder_ / name); }

  /// Of everything in the folder, sorted.
  std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.Path()))
      names.push_back(TextOf(entry.path().filename()));
    std::sort(names.begin(), names.end());
    return names;
  }
  int EntriesInFolder() { return static_cast<int>(Names().size()); }

  TemporaryFolder folder_;
};

}  // namespace brimwork
