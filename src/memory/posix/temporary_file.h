// A file that comes into being beside the one it will replace, or without a name until it is whole,
// and leaves nothing behind when it does not get that far.
#pragma once

#include <string>

#include "memory/posix/posix_file.h"

namespace brimwork::posix {

inline constexpr mode_t kForTheOwner = 0600;
inline constexpr mode_t kAsNewFilesAre = 0666;  // less what the user's mask takes away

class TemporaryFile {
 public:
  /// Without a name where the file system can, so that not even a killed process leaves it behind.
  static TemporaryFile Unnamed(const std::string& folder, mode_t mode = kForTheOwner);

  /// With a name, to be found again after a crash.
  static TemporaryFile Named(const std::string& folder, mode_t mode = kForTheOwner);

  TemporaryFile(TemporaryFile&& other) noexcept;
  TemporaryFile& operator=(TemporaryFile&&) = delete;
  ~TemporaryFile();

  const Descriptor& File() const { return file_; }
  const std::string& Path() const { return path_; }  // "" while it has no name

  /// Replaces target, which is in the same folder, in one step.
  void MoveTo(const std::string& target);

  /// Gives it the name target, in the same folder, in one step; false, and target is as it was,
  /// when something has that name.
  bool MoveToFree(const std::string& target);

  /// Leaves the file where it is.
  void Keep() { path_.clear(); }

 private:
  TemporaryFile(Descriptor file, std::string folder, std::string path);
  void TakeName();

  Descriptor file_;
  std::string folder_;
  std::string path_;
};

}  // namespace brimwork::posix
