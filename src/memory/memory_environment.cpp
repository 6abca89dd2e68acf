#include "memory/memory_environment.h"

#include <utility>

namespace brimwork {
namespace {

constexpr WindowHandle kMainWindowHandle = 1;

template <class Part>
Part& OneOf(Part* replacement, Part& own) {
  return replacement != nullptr ? *replacement : own;
}

}  // namespace

MemoryEnvironment::MemoryEnvironment() {
  screen.AddWindow(MemoryVbe::kMainWindowCaption, kMainWindowHandle);
  vbe.SetProject(std::make_shared<MemoryProject>([] { return std::string("Project1"); }));
}

std::shared_ptr<MemoryCodePane> MemoryEnvironment::Open(std::string moduleName, ModuleText text) {
  auto pane = std::make_shared<MemoryCodePane>(
      std::make_shared<MemoryCodeModule>(moduleName, std::move(text)));
  vbe.OpenPane(pane, moduleName + " (Code)");
  return pane;
}

Environment MemoryEnvironment::Parts(const Replacements& others) {
  return {.vbe = OneOf<VBE>(others.vbe, vbe),
          .screen = OneOf<Screen>(others.screen, screen),
          .clipboard = clipboard,
          .keyboard = OneOf<Keyboard>(others.keyboard, keyboard),
          .dialogs = OneOf<Dialogs>(others.dialogs, dialogs),
          .messageLoop = messageLoop,
          .registry = registry,
          .settingsArea = OneOf<SettingsArea>(others.settingsArea, settingsArea),
          .shellFolders = OneOf<ShellFolders>(others.shellFolders, shellFolders),
          .clock = OneOf<Clock>(others.clock, clock),
          .app = app,
          .nativeWindows = nativeWindows,
          .dialogWindows = dialogWindows,
          .windowTimers = windowTimers,
          .messageBoxes = messageBoxes,
          .formScreen = formScreen,
          .richTextBoxes = richTextBoxes,
          .textFiles = textFiles,
          .wordProcessors = wordProcessors,
          .shell = shell,
          .helpViewer = helpViewer,
          .formHost = formHost};
}

}  // namespace brimwork
