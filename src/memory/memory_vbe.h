// The environment's object model as plain data: one project, its windows and command bars, and the
// code panes that are opened in it.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "environment/vbe.h"
#include "memory/memory_code_pane.h"
#include "memory/memory_command_bars.h"
#include "memory/memory_project.h"
#include "memory/memory_window.h"

namespace brimwork {

class MemoryVbe : public VBE {
 public:
  static constexpr const char* kMainWindowCaption = "Visual Basic";
  static constexpr const char* kMenuBarName = "Menu Bar";

  /// Starts with the main window and the menu bar.
  MemoryVbe(MemoryKeyboard& keyboard, const MemoryClipboard& clipboard);

  std::string FullName() override { return fullName; }
  std::shared_ptr<CodePane> ActiveCodePane() override { return activePane_; }
  std::shared_ptr<VBProject> ActiveVBProject() override { return project_; }
  std::shared_ptr<Window> MainWindow() override { return mainWindow_; }
  std::shared_ptr<Window> ActiveWindow() override;
  std::vector<std::shared_ptr<Window>> Windows() override;
  std::shared_ptr<Window> WindowOfCaption(std::string_view caption) override;
  std::vector<std::shared_ptr<CommandBar>> CommandBars() override;
  std::shared_ptr<CommandBar> CommandBarOfName(std::string_view name) override;
  std::shared_ptr<CommandBar> AddCommandBar(const NewCommandBar& bar) override;
  std::shared_ptr<CommandBarControl> FindControl(int id) override;
  std::unique_ptr<CommandBarEvents> CommandBarEventsOf(
      const std::shared_ptr<CommandBarControl>& control, ClickHandler onClick) override;

  /// Opens a code window for the pane, which becomes the active one with the focus.
  void OpenPane(const std::shared_ptr<MemoryCodePane>& pane, std::string caption);

  /// All open panes, in the order of their opening.
  const std::vector<std::shared_ptr<MemoryCodePane>>& Panes() const { return panes_; }

  std::shared_ptr<MemoryCodePane> ActivePane() const { return activePane_; }
  void SetActivePane(std::shared_ptr<MemoryCodePane> pane) { activePane_ = std::move(pane); }

  /// Of the main window.
  void SetCaption(std::string caption) { mainWindow_->SetCaption(std::move(caption)); }
  void SetProject(std::shared_ptr<VBProject> project) { project_ = std::move(project); }
  /// Takes in a bar of the environment's own.
  void AddCommandBar(const std::shared_ptr<MemoryCommandBar>& bar);

  MemoryWindows windows;
  MemoryCommandBars commandBars;
  std::string fullName = "C:\\Program Files\\Microsoft Visual Studio\\VB98\\VB6.EXE";

 private:
  std::shared_ptr<MemoryCodePane> PaneOf(MemoryWindow& window) const;
  void NoteActivation(MemoryWindow& window);
  void ForgetPaneOf(MemoryWindow& window);

  std::vector<std::shared_ptr<MemoryCodePane>> panes_;
  std::vector<std::shared_ptr<MemoryCodePane>> byActivity_;  // the latest active one stands last
  std::shared_ptr<MemoryCodePane> activePane_;
  std::shared_ptr<VBProject> project_;
  std::shared_ptr<MemoryWindow> mainWindow_;
};

}  // namespace brimwork
