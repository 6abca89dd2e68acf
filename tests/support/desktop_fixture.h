// An environment of plain data for tests that need a desktop but no code module.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "memory/memory_environment.h"

namespace brimwork {

class CaptionedWindow : public Window {
 public:
  explicit CaptionedWindow(std::string caption) : caption_(std::move(caption)) {}
  std::uintptr_t Identity() override { return reinterpret_cast<std::uintptr_t>(this); }
  std::string Caption() override { return caption_; }
  int Type() override { return window_type::kMainWindow; }
  bool Visible() override { return true; }
  void SetVisible(bool /*visible*/) override {}
  void SetFocus() override {}
  void Close() override {}

 private:
  std::string caption_;
};

/// No module is open; the main window is there once a test has set it.
class EmptyVbe : public VBE {
 public:
  std::string FullName() override { return {}; }
  std::shared_ptr<CodePane> ActiveCodePane() override { return nullptr; }
  std::shared_ptr<VBProject> ActiveVBProject() override { return nullptr; }
  std::shared_ptr<Window> MainWindow() override { return mainWindow; }
  std::shared_ptr<Window> ActiveWindow() override { return nullptr; }
  std::vector<std::shared_ptr<Window>> Windows() override { return {}; }
  std::shared_ptr<Window> WindowOfCaption(std::string_view /*caption*/) override { return nullptr; }
  std::vector<std::shared_ptr<CommandBar>> CommandBars() override { return {}; }
  std::shared_ptr<CommandBar> CommandBarOfName(std::string_view /*name*/) override {
    return nullptr;
  }
  std::shared_ptr<CommandBar> AddCommandBar(const NewCommandBar& bar) override {
    return std::make_shared<MemoryCommandBar>(bar);
  }
  std::shared_ptr<CommandBarControl> FindControl(int /*id*/) override { return nullptr; }
  std::unique_ptr<CommandBarEvents> CommandBarEventsOf(
      const std::shared_ptr<CommandBarControl>& /*control*/, ClickHandler /*onClick*/) override {
    return std::make_unique<CommandBarEvents>();
  }

  std::shared_ptr<Window> mainWindow;
};

struct DesktopFixture : MemoryEnvironment {
  EmptyVbe vbe;

  /// This fixture's environment, with another dialog or screen where a test brings its own.
  Environment With(Screen& otherScreen, Dialogs& otherDialogs) {
    return Parts({.vbe = &vbe, .screen = &otherScreen, .dialogs = &otherDialogs});
  }

  Environment environment = With(screen, dialogs);
};

}  // namespace brimwork
