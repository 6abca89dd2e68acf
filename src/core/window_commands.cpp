#include "core/window_commands.h"

#include "ide_windows/modFullScreen.h"
#include "ide_windows/modMiscellaneousButtonClickCode.h"
#include "ide_windows/modTweakWindow.h"

namespace brimwork {

void SwitchFullScreen(AddIn& addIn) {
  const RedrawLock lock(addIn.environment);
  addIn.Attempt([&] { ToggleFullScreen(addIn.environment); });
}

void EmptyImmediateWindow(AddIn& addIn) {
  addIn.Attempt([&] { ClearImmediateWindow(addIn.environment); });
}

void CloseOtherWindows(AddIn& addIn) {
  addIn.Attempt([&] { CloseCodeWindows(addIn.environment, false); });
}

}  // namespace brimwork
