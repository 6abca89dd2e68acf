#include "windows/forms/control_window.h"

#include "win32/wide_text.h"
#include "windows/desktop/system_error.h"
#include "windows/forms/form_window.h"

namespace brimwork::windows {
namespace {

bool IsMouseMessage(UINT message) { return message >= WM_MOUSEFIRST && message <= WM_MOUSELAST; }

bool IsPress(UINT message) { return message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK; }

bool IsKeyMessage(UINT message) {
  return message == WM_KEYDOWN || message == WM_CHAR || message == WM_SYSCHAR;
}

}  // namespace

void ControlWindow::Create(HWND container) {
  const Design design = WindowDesign();
  const RECT place =
      Kit().scale.ToPixels(Place{control_.Left, control_.Top, control_.Width, control_.Height});
  handle_ = CreateWindowExW(design.extendedStyle, design.className, L"",
                            WS_CHILD | WS_CLIPSIBLINGS | design.style, place.left, place.top,
                            place.right - place.left, place.bottom - place.top, container, nullptr,
                            OwnModule(), nullptr);
  if (handle_ == nullptr) RaiseSystemError("CreateWindowEx");
  SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  original_ = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure)));
  SetWindowPos(handle_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  ShowAll();
}

void ControlWindow::ShowAll() {
  for (const PropertyId property :
       {PropertyId::kFont, PropertyId::kEnabled, PropertyId::kToolTipText, PropertyId::kVisible}) {
    ControlWindow::Show(property);
  }
}

void ControlWindow::Show(PropertyId property) {
  switch (property) {
    case PropertyId::kPlace:
      return ShowPlace();
    case PropertyId::kVisible:
      ShowWindow(handle_, control_.Visible ? SW_SHOWNA : SW_HIDE);
      return;
    case PropertyId::kEnabled:
      EnableWindow(handle_, IsEnabled());
      return Repaint();
    case PropertyId::kFont:
      Send(WM_SETFONT, reinterpret_cast<WPARAM>(Font()), TRUE);
      return;
    case PropertyId::kColor:
      return Repaint();
    case PropertyId::kToolTipText:
      return ShowToolTip();
    default:
      return;
  }
}

void ControlWindow::ShowPlace() {
  const RECT place =
      Kit().scale.ToPixels(Place{control_.Left, control_.Top, control_.Width, control_.Height});
  MoveWindow(handle_, place.left, place.top, place.right - place.left, place.bottom - place.top,
             TRUE);
}

void ControlWindow::ShowToolTip() {
  form_.Tips().Set(handle_, 0, kWholeWindow, control_.ToolTipText);
}

// A control looks as if it could not be used when that is so because of what it lies in.
bool ControlWindow::IsEnabled() const {
  for (const Control* control = &control_; control != nullptr; control = control->Container()) {
    if (!control->Enabled) return false;
  }
  return true;
}

LRESULT ControlWindow::OnColors(HDC context) {
  SetTextColor(context, ShownColor(control_.ForeColor));
  SetBkColor(context, ShownColor(control_.BackColor));
  return reinterpret_cast<LRESULT>(Kit().brushes.Brush(control_.BackColor));
}

void ControlWindow::ShowText(std::string_view text) {
  SetWindowTextW(handle_, win32::Wide(text).c_str());
}

HFONT ControlWindow::Font() const { return Kit().fonts.Font(control_.Font); }

FormKit& ControlWindow::Kit() const { return form_.Kit(); }

LRESULT CALLBACK ControlWindow::Procedure(HWND handle, UINT message, WPARAM wide,
                                          LPARAM longer) noexcept {
  auto* const window = reinterpret_cast<ControlWindow*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  if (window == nullptr) return DefWindowProcW(handle, message, wide, longer);
  return window->form_.Handle([&] {
    if (message == WM_NCDESTROY) return window->ReceiveLast(message, wide, longer);
    return window->ReceiveWhileLoaded(message, wide, longer);
  });
}

LRESULT ControlWindow::ReceiveLast(UINT message, WPARAM wide, LPARAM longer) {
  SetWindowLongPtrW(handle_, GWLP_USERDATA, 0);
  const LRESULT result = Default(message, wide, longer);
  handle_ = nullptr;
  return result;
}

LRESULT ControlWindow::ReceiveWhileLoaded(UINT message, WPARAM wide, LPARAM longer) {
  if (!form_.IsLoaded()) return Default(message, wide, longer);
  if (IsMouseMessage(message)) form_.Tips().Relay(handle_, message, wide, longer);
  if (const auto result = form_.GiveBack(message, wide, longer)) return *result;
  const bool isTaken =
      IsKeyMessage(message) && (TakeKey(message, wide) || form_.TakeKey(message, wide));
  if (isTaken || (IsPress(message) && control_.TakesFocus() && !TakeFocus())) return 0;
  return form_.IsLoaded() ? Receive(message, wide, longer) : 0;
}

LRESULT ControlWindow::Receive(UINT message, WPARAM wide, LPARAM longer) {
  const LRESULT result = Default(message, wide, longer);
  // The keys come here whoever's message loop it is.
  if (message == WM_GETDLGCODE) return result | DLGC_WANTALLKEYS;
  if (message == WM_SETFOCUS) TakeSystemFocus();
  return result;
}

bool ControlWindow::TakeFocus() {
  bool isHere = false;
  const auto move = [&] { isHere = form_.Data().MoveFocus(control_) && control_.CanBeUsed(); };
  return form_.Tell(move) && isHere;
}

// Another program, or the system, may give the focus; what the data refuses goes back.
void ControlWindow::TakeSystemFocus() {
  if (form_.IsShowingFocus() || !form_.IsLoaded()) return;
  if (form_.Data().ActiveControl() == &control_) return;
  const bool canHaveIt = control_.TakesFocus() && control_.CanBeUsed();
  if (!canHaveIt || !TakeFocus()) form_.ShowFocusLater();
}

}  // namespace brimwork::windows
