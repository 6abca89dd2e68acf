// The paths that were opened last, and the entries of the File menu that show them.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "memory/memory_command_bar.h"

namespace brimwork::bench {

class RecentProjects {
 public:
  /// file's control 15 and those behind it, up to the last one, give way to the entries; while
  /// there are none, a disabled entry keeps the place. open is called with the path of a picked
  /// entry.
  RecentProjects(std::shared_ptr<MemoryCommandBar> file,
                 std::function<void(const std::string&)> open);

  /// The latest first, at most four, none twice in any letter case.
  const std::vector<std::string>& Paths() const { return paths_; }

  /// Leaves out what is there twice, and what is too much.
  void Set(const std::vector<std::string>& paths);

  void PutFirst(const std::string& path);

 private:
  void ShowEntries();
  void AddEntry(int place, const std::string& caption);

  std::shared_ptr<MemoryCommandBar> file_;
  std::function<void(const std::string&)> open_;
  std::vector<std::string> paths_;
  std::vector<std::shared_ptr<MemoryCommandBarControl>> entries_;
};

}  // namespace brimwork::bench
