#include "bench/screen/mdi_child.h"

#include <utility>

#include "bench/screen/picture_painter.h"
#include "win32/wide_text.h"

namespace brimwork::bench {

MdiChild::MdiChild(const ScreenParts& parts, std::shared_ptr<MemoryWindow> window)
    : parts_(parts), window_(std::move(window)), title_(window_->Caption()) {}

void MdiChild::CreateIn(HWND client, const wchar_t* className, int background, Glyph glyph) {
  icon_ = IconOf(Drawn(glyph));
  const std::wstring title = win32::Wide(title_);
  Create({.className = className,
          .title = title.c_str(),
          .style = WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
          .extendedStyle = WS_EX_MDICHILD,
          .parent = client,
          .background = background});
  SendMessageW(Handle(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(icon_.get()));
}

void MdiChild::Close() {
  if (Handle() == nullptr) return;
  SendMessageW(GetParent(Handle()), WM_MDIDESTROY, reinterpret_cast<WPARAM>(Handle()), 0);
}

void MdiChild::Refresh() {
  if (title_ == window_->Caption()) return;
  title_ = window_->Caption();
  SetWindowTextW(Handle(), win32::Wide(title_).c_str());
}

WindowState MdiChild::State() const {
  if (IsIconic(Handle())) return WindowState::kMinimized;
  return IsZoomed(Handle()) ? WindowState::kMaximized : WindowState::kNormal;
}

void MdiChild::SetState(WindowState state) {
  const HWND client = GetParent(Handle());
  const auto self = reinterpret_cast<WPARAM>(Handle());
  const auto restore = [&] { SendMessageW(client, WM_MDIRESTORE, self, 0); };
  switch (state) {
    case WindowState::kMaximized:
      SendMessageW(client, WM_MDIMAXIMIZE, self, 0);
      break;
    case WindowState::kNormal:
      restore();
      if (IsZoomed(Handle())) restore();  // it was that before it was minimized
      break;
    case WindowState::kMinimized:
      ShowWindow(Handle(), SW_MINIMIZE);
      break;
  }
}

LRESULT MdiChild::OnMessage(UINT message, WPARAM wide, LPARAM longer) {
  switch (message) {
    case WM_CLOSE:
      parts_.host.CloseByUser(window_);
      return 0;
    case WM_SETFOCUS: {
      const HWND target = FocusTarget();
      if (target != nullptr && target != Handle() && !IsIconic(Handle())) {
        SetFocus(target);
      } else {
        parts_.host.NoteFocus(window_);
      }
      return 0;
    }
    default:
      return Default(message, wide, longer);
  }
}

}  // namespace brimwork::bench
