#include "ide_windows/modTweakWindow.h"

#include "environment/resume_next.h"

namespace brimwork {
namespace {

/// "" when there is no main window or it cannot be asked.
std::string MainWindowTitle(Environment& environment) {
  std::string title;
  ResumeNext([&] {
    if (const auto window = environment.vbe.MainWindow()) title = window->Caption();
  });
  return title;
}

}  // namespace

void SetWindowUpdateLock(Environment& environment, bool lock, WindowHandle& handle,
                         std::string_view title) {
  Screen& screen = environment.screen;
  if (handle == 0) ResumeNext([&] { handle = screen.FindWindowByTitle(title); });
  if (handle == 0) return;
  if (lock) {
    ResumeNext([&] { screen.SetMousePointer(mouse_pointer::kHourglass); });
    ResumeNext([&] { screen.LockWindowUpdate(handle); });
  } else {
    Insist([&] { screen.LockWindowUpdate(0); });
    Insist([&] { screen.SetMousePointer(mouse_pointer::kDefault); });
  }
}

RedrawLock::RedrawLock(Environment& environment)
    : environment_(environment), title_(MainWindowTitle(environment)) {
  // An empty title would find any window without a title.
  if (!title_.empty()) SetWindowUpdateLock(environment_, true, handle_, title_);
}

// The handle found when locking is used again: the title may have changed in the meantime.
RedrawLock::~RedrawLock() {
  if (handle_ != 0) SetWindowUpdateLock(environment_, false, handle_, title_);
}

}  // namespace brimwork
