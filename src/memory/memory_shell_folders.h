// The shell's special folders as plain data.
#pragma once

#include <map>
#include <string>

#include "environment/desktop.h"
#include "environment/run_time_error.h"

namespace brimwork {

class MemoryShellFolders : public ShellFolders {
 public:
  std::string SpecialFolderPath(int folderId) override {
    const auto path = paths_.find(folderId);
    if (path == paths_.end()) {
      throw RunTimeError(error_number::kInvalidProcedureCall,
                         "there is no special folder " + std::to_string(folderId));
    }
    return path->second;
  }

  void SetPath(int folderId, std::string path) { paths_[folderId] = std::move(path); }

 private:
  std::map<int, std::string> paths_;
};

}  // namespace brimwork
