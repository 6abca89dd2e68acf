#include "ide_windows/modTweakWindow.h"

#include <cstdint>

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

// While disabled, the Close item bears a number that nobody else knows, so that the window cannot
// enable it again by itself.
constexpr std::int32_t kCloseItem = 0xF060;  // SC_CLOSE
constexpr std::int32_t kHiddenCloseItem = -10;

// WM_NCACTIVATE redraws the caption, here as that of an active window.
constexpr std::uint32_t kDrawCaption = 0x86;
constexpr std::intptr_t kAsActive = -1;

/// What step returns; false when it raises a run-time error.
template <class Step>
bool Succeeds(Step step) {
  bool succeeded = false;
  ResumeNext([&] { succeeded = step(); });
  return succeeded;
}

/// The Close item of a window's system menu on its way from one number and state to the other. Each
/// step returns whether it succeeded.
class CloseItem {
 public:
  CloseItem(NativeWindows& windows, WindowHandle window, bool enable)
      : windows_(windows), enable_(enable) {
    ResumeNext([&] { menu_ = windows_.GetSystemMenu(window, false); });
  }

  bool ReadState() {
    info_.mask = menu_item_mask::kState;
    return Succeeds([&] { return windows_.GetMenuItemInfo(menu_, OldId(), info_); });
  }

  bool Move() {
    info_.mask = menu_item_mask::kId;
    info_.id = NewId();
    return Succeeds([&] { return windows_.SetMenuItemInfo(menu_, OldId(), info_); });
  }

  /// Comes behind Move: the item is found under its new number only.
  bool ChangeState() {
    info_.mask = menu_item_mask::kState;
    if (enable_) {
      info_.state &= ~menu_item_state::kGrayed;
    } else {
      info_.state |= menu_item_state::kGrayed;
    }
    return Succeeds([&] { return windows_.SetMenuItemInfo(menu_, NewId(), info_); });
  }

 private:
  std::int32_t OldId() const { return enable_ ? kHiddenCloseItem : kCloseItem; }
  std::int32_t NewId() const { return enable_ ? kCloseItem : kHiddenCloseItem; }

  NativeWindows& windows_;
  bool enable_;
  MenuHandle menu_ = 0;
  MenuItemInfo info_;
};

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

void SetTopMost(Environment& environment, WindowHandle window, bool onTop) {
  const WindowPosition position{
      .insertAfter = onTop ? window_order::kTopMost : window_order::kNotTopMost,
      .flags = window_position_flag::kNoMove | window_position_flag::kNoSize};
  ResumeNext([&] { environment.nativeWindows.SetWindowPos(window, position); });
}

int EnableCloseButton(Environment& environment, WindowHandle window, bool enable) {
  NativeWindows& windows = environment.nativeWindows;
  if (!Succeeds([&] { return windows.IsWindow(window); })) return close_button::kNoWindow;
  CloseItem closeItem(windows, window, enable);
  if (!closeItem.ReadState()) return close_button::kDone;
  if (!closeItem.Move()) return close_button::kItemNotMoved;
  if (!closeItem.ChangeState()) return close_button::kStateNotChanged;
  ResumeNext([&] { windows.SendMessage(window, kDrawCaption, kAsActive, 0); });
  return close_button::kDone;
}

}  // namespace brimwork
