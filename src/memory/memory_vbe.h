// The environment's object model as plain data: one project, its windows and command bars, and the
// code panes that are opened in it.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "environment/vbe.h"
#include "memory/memory_code_pane.h"
#include "memory/memory_command_bar.h"
#include "memory/memory_project.h"
#include "memory/memory_window.h"

namespace brimwork {

class MemoryVbe : public VBE {
 public:
  static constexpr const char* kMainWindowCaption = "Visual Basic";

  /// Starts with the main window and the menu bar.
  explicit MemoryVbe(MemoryKeyboard& keyboard);

  std::shared_ptr<CodePane> ActiveCodePane() override { return activePane_; }
  std::shared_ptr<VBProject> ActiveVBProject() override { return project_; }
  std::shared_ptr<Window> MainWindow() override { return mainWindow_; }
  std::shared_ptr<Window> ActiveWindow() override;
  std::vector<std::shared_ptr<Window>> Windows() override;
  std::shared_ptr<Window> WindowOfCaption(std::string_view caption) override;
  std::vector<std::shared_ptr<CommandBar>> CommandBars() override;

  /// Opens a code window for the pane, which becomes the active one with the focus.
  void OpenPane(const std::shared_ptr<MemoryCodePane>& pane, std::string caption);

  void SetActivePane(std::shared_ptr<MemoryCodePane> pane) { activePane_ = std::move(pane); }
  void SetProject(std::shared_ptr<VBProject> project) { project_ = std::move(project); }
  void AddCommandBar(std::shared_ptr<MemoryCommandBar> bar);

  MemoryWindows windows;

 private:
  using Panes = std::vector<std::shared_ptr<MemoryCodePane>>;

  Panes::iterator PaneOf(MemoryWindow& window);
  void NoteActivation(MemoryWindow& window);
  void ForgetPaneOf(MemoryWindow& window);

  Panes panes_;  // the one that was active last stands last
  std::shared_ptr<MemoryCodePane> activePane_;
  std::shared_ptr<VBProject> project_;
  std::shared_ptr<MemoryWindow> mainWindow_;
  std::vector<std::shared_ptr<MemoryCommandBar>> commandBars_;
};

}  // namespace brimwork
