// The environment's own commands, as far as they need the screen: what each does, whether it can be
// done now, and the keys for it.
#pragma once

#include <windows.h>

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "bench/screen/find_dialog.h"
#include "bench/screen/screen_host.h"
#include "bench/screen/tool_set.h"
#include "bench/screen/workspace.h"

namespace brimwork::bench {

class UserCommands {
 public:
  /// Gives the model's commands their actions, until it is destroyed. exit: ends the program.
  UserCommands(const ScreenParts& parts, Workspace& workspace, ToolSet& tools,
               std::function<void()> exit);
  ~UserCommands();
  UserCommands(const UserCommands&) = delete;
  UserCommands& operator=(const UserCommands&) = delete;

  /// Shows which commands can be done now.
  void ShowStates();

  // True when the key is what they ask for.

  bool TakesKeyOfDialog(MSG& message) const;
  bool TakesKeyOfCommand(const MSG& message);

  /// Opens a project or a source file, and a window for it. Throws what Workbench::Open throws.
  void Open(const std::filesystem::path& path);

  /// Asks what becomes of unsaved changes; false when the user wants to go on working.
  bool MayClose();

 private:
  void Give(int command, std::function<void()> action);
  void GiveEditing();
  void GiveFiles();
  void GiveWindows();

  TextView* Text() const;
  void OnText(void (TextView::*task)());
  void Find();
  void FindAgain();
  void Look(const SearchQuery& query);
  void OpenProject();
  void HideActive();
  void ShowState(int command, bool isEnabled);

  ScreenParts parts_;
  Workspace& workspace_;
  ToolSet& tools_;
  std::function<void()> exit_;
  FindDialog find_;
  std::vector<int> given_;       // commands that this gave actions to
  std::map<int, bool> enabled_;  // as this last said
};

}  // namespace brimwork::bench
