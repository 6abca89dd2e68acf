#include "windows/component/windows_environment.h"

#include <utility>

#include "environment/resume_next.h"
#include "windows/component/pictures.h"

namespace brimwork::windows {

WindowsEnvironment::WindowsEnvironment(HINSTANCE module, win32::ComPointer<IDispatch> vbe,
                                       LibraryUse use)
    : vbe_(std::move(vbe), {}, std::move(use)),
      clipboard_([module](std::string_view name) { return PictureOf(module, name); }),
      dialogs_([this] { return MainWindow(); }),
      app_(module),
      formHost_([module](std::string_view name) { return PictureOf(module, name); },
                [this] { return MainWindow(); }),
      formScreen_(formHost_) {}

Environment WindowsEnvironment::Parts() {
  return {vbe_,        screen_,        clipboard_,     keyboard_,       dialogs_,
          messages_,   registry_,      settingsArea_,  shellFolders_,   clock_,
          app_,        nativeWindows_, dialogWindows_, windowTimers_,   messageBoxes_,
          formScreen_, richTextBoxes_, textFiles_,     wordProcessors_, shell_,
          helpViewer_, formHost_};
}

void WindowsEnvironment::KeepAliveBy(std::function<std::shared_ptr<const void>()> keeper) {
  formHost_.KeepAliveBy(std::move(keeper));
}

HWND WindowsEnvironment::MainWindow() {
  HWND window = nullptr;
  ResumeNext([&] {
    const auto main = vbe_.MainWindow();
    if (main) window = reinterpret_cast<HWND>(main->Identity());
  });
  return IsWindow(window) ? window : nullptr;
}

}  // namespace brimwork::windows
