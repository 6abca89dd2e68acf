// The special folders of a desktop that follows the XDG user folders.
#pragma once

#include <string>

#include "environment/desktop.h"

namespace brimwork {

class XdgShellFolders : public ShellFolders {
 public:
  /// Folder 0, the desktop: XDG_DESKTOP_DIR of user-dirs.dirs in the user's configuration folder,
  /// else Desktop in the home folder when that exists, else the home folder. No trailing slash
  /// except for the root. Other folders, or an unknown home folder, raise error 5.
  std::string SpecialFolderPath(int folderId) override;
};

}  // namespace brimwork
