#include "settings/modFolderPaths.h"

#include "environment/resume_next.h"

namespace brimwork {

std::string GetSpecialFolderPath(Environment& environment, int folderId) {
  std::string path;
  ResumeNext([&] { path = environment.shellFolders.SpecialFolderPath(folderId); });
  return path;
}

}  // namespace brimwork
