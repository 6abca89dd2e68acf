// The system's shell: special folders, the user's programs, compiled help, and where the add-in is.
#pragma once

#include <windows.h>

#include "environment/desktop.h"
#include "environment/shell.h"

// The system's headers give these names to macros of their own.
#undef ShellExecute

namespace brimwork::windows {

class SystemShellFolders : public ShellFolders {
 public:
  std::string SpecialFolderPath(int folderId) override;
};

class SystemShell : public Shell {
 public:
  /// Raises error 5 when there is no such thing, or no program for it.
  void ShellExecute(std::string_view verb, std::string_view file, std::string_view parameters,
                    std::string_view directory) override;
};

/// The program file, or library, of a module.
class ModuleApp : public App {
 public:
  explicit ModuleApp(HINSTANCE module) : module_(module) {}

  std::string Path() override;
  InstanceHandle Instance() override { return reinterpret_cast<InstanceHandle>(module_); }

 private:
  HINSTANCE module_;
};

}  // namespace brimwork::windows
