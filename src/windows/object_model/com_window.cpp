#include "windows/object_model/com_window.h"

#include "environment/resume_next.h"

namespace brimwork::windows {

// Whether the environment hands out one object for one window is not told, and its hidden member
// for the handle need not answer for every kind of window.
std::uintptr_t ComWindow::Identity() {
  int handle = 0;
  ResumeNext([&] { handle = ToNumber(window_.Get(L"HWnd")); });
  return handle != 0 ? static_cast<std::uint32_t>(handle) : window_.Identity();
}

std::string ComWindow::Caption() { return ToText(window_.Get(L"Caption")); }

int ComWindow::Type() { return ToNumber(window_.Get(L"Type")); }

bool ComWindow::Visible() { return ToTruth(window_.Get(L"Visible")); }

void ComWindow::SetVisible(bool visible) { window_.Put(L"Visible", Argument(visible)); }

void ComWindow::SetFocus() { window_.Call(L"SetFocus"); }

void ComWindow::Close() { window_.Call(L"Close"); }

}  // namespace brimwork::windows
