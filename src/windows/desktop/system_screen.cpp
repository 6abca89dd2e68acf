#include "windows/desktop/system_screen.h"

#include "win32/wide_text.h"

namespace brimwork::windows {

void SystemScreen::SetMousePointer(int pointer) {
  const bool waits = pointer == mouse_pointer::kHourglass;
  SetCursor(LoadCursorW(nullptr, waits ? IDC_WAIT : IDC_ARROW));
  pointer_ = pointer;
}

WindowHandle SystemScreen::FindWindowByTitle(std::string_view title) {
  return reinterpret_cast<WindowHandle>(FindWindowW(nullptr, win32::Wide(title).c_str()));
}

// The system refuses a second freeze; drawing is none the worse for that.
void SystemScreen::LockWindowUpdate(WindowHandle window) {
  ::LockWindowUpdate(reinterpret_cast<HWND>(window));
}

}  // namespace brimwork::windows
