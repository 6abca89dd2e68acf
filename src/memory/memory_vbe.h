// The environment's object model as plain data: one project, a main window, and the code panes that
// are opened in it.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "environment/vbe.h"
#include "memory/memory_code_pane.h"

namespace brimwork {

class MemoryProject : public VBProject {
 public:
  /// name is asked for only when a command wants the project's name.
  explicit MemoryProject(std::function<std::string()> name) : name_(std::move(name)) {}
  std::string Name() override { return name_(); }

 private:
  std::function<std::string()> name_;
};

class MemoryWindow : public Window {
 public:
  explicit MemoryWindow(std::string caption) : caption_(std::move(caption)) {}
  std::string Caption() override { return caption_; }

 private:
  std::string caption_;
};

class MemoryVbe : public VBE {
 public:
  static constexpr const char* kMainWindowCaption = "Visual Basic";

  std::shared_ptr<CodePane> ActiveCodePane() override { return activePane_; }
  std::shared_ptr<VBProject> ActiveVBProject() override { return project_; }
  std::shared_ptr<Window> MainWindow() override { return mainWindow_; }

  void SetActivePane(std::shared_ptr<MemoryCodePane> pane) { activePane_ = std::move(pane); }
  void SetProject(std::shared_ptr<VBProject> project) { project_ = std::move(project); }

 private:
  std::shared_ptr<MemoryCodePane> activePane_;
  std::shared_ptr<VBProject> project_;
  std::shared_ptr<Window> mainWindow_ = std::make_shared<MemoryWindow>(kMainWindowCaption);
};

}  // namespace brimwork
