// An environment whose settings and folders are the user's own.
#pragma once

#include "memory/json_settings_area.h"
#include "memory/memory_environment.h"
#include "memory/xdg_shell_folders.h"

namespace brimwork {

struct UserSettings {
  /// dialogs: what message boxes are shown by; null for those that are kept in memory.
  explicit UserSettings(Dialogs* dialogs = nullptr)
      : environment(
            memory.Parts({.dialogs = dialogs, .settingsArea = &area, .shellFolders = &folders})) {}

  JsonSettingsArea area;
  XdgShellFolders folders;
  MemoryEnvironment memory;
  Environment environment;
};

}  // namespace brimwork
