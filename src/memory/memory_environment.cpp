#include "memory/memory_environment.h"

#include <utility>

namespace brimwork {
namespace {

constexpr WindowHandle kMainWindowHandle = 1;

}  // namespace

MemoryEnvironment::MemoryEnvironment() {
  screen.AddWindow(MemoryVbe::kMainWindowCaption, kMainWindowHandle);
  vbe.SetProject(std::make_shared<MemoryProject>([] { return std::string("Project1"); }));
}

std::shared_ptr<MemoryCodePane> MemoryEnvironment::Open(std::string moduleName, ModuleText text) {
  auto pane = std::make_shared<MemoryCodePane>(
      std::make_shared<MemoryCodeModule>(std::move(moduleName), std::move(text)));
  vbe.SetActivePane(pane);
  keyboard.SetFocus(pane.get());
  return pane;
}

Environment MemoryEnvironment::Parts(SettingsArea& settings, Clock& dates) {
  return {vbe,         screen,   clipboard, keyboard,     dialogs,
          messageLoop, registry, settings,  shellFolders, dates};
}

}  // namespace brimwork
