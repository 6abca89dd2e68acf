// What the user does with a form's window, and the keys that belong to the form.
#include <windowsx.h>

#include <algorithm>

#include "environment/timer.h"
#include "windows/forms/form_window.h"

namespace brimwork::windows {
namespace {

constexpr WPARAM kTabCharacter = 9;
constexpr WPARAM kLineFeedCharacter = 10;
constexpr WPARAM kReturnCharacter = 13;
constexpr WPARAM kEscapeCharacter = 27;

/// The window that tells the one around it something; null for messages of another kind.
HWND SenderOf(UINT message, LPARAM longer) {
  const bool isAboutColors = message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
  if (message == WM_COMMAND || isAboutColors) return reinterpret_cast<HWND>(longer);
  const auto* const notification = reinterpret_cast<const NMHDR*>(longer);
  return message == WM_NOTIFY && notification != nullptr ? notification->hwndFrom : nullptr;
}

bool IsDown(int key) { return GetKeyState(key) < 0; }

std::optional<Key> FormKey(WPARAM key) {
  if (IsDown(VK_CONTROL)) return std::nullopt;
  switch (key) {
    case VK_TAB:
      return IsDown(VK_SHIFT) ? Key::kShiftTab : Key::kTab;
    case VK_RETURN:
      return Key::kEnter;
    case VK_ESCAPE:
      return Key::kEscape;
    default:
      return std::nullopt;
  }
}

/// The characters of keys that were taken when they went down; no control knows them, and some
/// beep.
bool IsCharacterOfTakenKey(WPARAM character) {
  return character == kTabCharacter || character == kReturnCharacter ||
         character == kEscapeCharacter || character == kLineFeedCharacter;
}

bool IsLetterOrDigit(WPARAM character) {
  return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
         (character >= 'a' && character <= 'z');
}

}  // namespace

LRESULT CALLBACK FormWindow::Procedure(HWND handle, UINT message, WPARAM wide,
                                       LPARAM longer) noexcept {
  if (message == WM_NCCREATE) {
    const auto* const creation = reinterpret_cast<const CREATESTRUCTW*>(longer);
    SetWindowLongPtrW(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
  }
  auto* const window = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  if (window == nullptr) return DefWindowProcW(handle, message, wide, longer);
  return window->Handle([&] { return window->ReceiveAt(handle, message, wide, longer); });
}

// While the window is made and while it goes, the system alone is at work in it.
LRESULT FormWindow::ReceiveAt(HWND handle, UINT message, WPARAM wide, LPARAM longer) {
  if (message == WM_NCDESTROY) {
    SetWindowLongPtrW(handle, GWLP_USERDATA, 0);
    std::erase(kit_->activated, handle);
    handle_ = nullptr;
    untilDestroyed_.reset();
  }
  if (message == WM_DESTROY && handle_ == handle) TakeDestruction();
  if (handle_ != handle || !IsLoaded()) return DefWindowProcW(handle, message, wide, longer);
  return Receive(message, wide, longer);
}

LRESULT FormWindow::Receive(UINT message, WPARAM wide, LPARAM longer) {
  if (const auto result = GiveBack(message, wide, longer)) return *result;
  switch (message) {
    case WM_ERASEBKGND:
      PaintBackground(reinterpret_cast<HDC>(wide));
      return 1;
    case WM_CLOSE:
      Tell([this] { form_->Close(); });
      return 0;
    case WM_SYSCOMMAND:
      if (IsRefusedClose(wide)) return 0;
      break;
    case WM_SIZE:
      if (wide != SIZE_MINIMIZED) TakeSize(longer);
      return 0;
    case WM_ACTIVATE:
      TakeActivation(LOWORD(wide) != WA_INACTIVE);
      break;
    case WM_SETFOCUS:
    case kShowFocus:
      ShowFocus();
      return 0;
    case WM_TIMER:
      TakeTick(wide);
      return 0;
    case WM_KEYDOWN:
    case WM_CHAR:
    case WM_SYSCHAR:
      if (TakeKey(message, wide)) return 0;
      break;
    case WM_SYSCOLORCHANGE:
      for (const auto& window : controls_) SendMessageW(window->Handle(), message, 0, 0);
      break;
  }
  return handle_ != nullptr ? DefWindowProcW(handle_, message, wide, longer) : 0;
}

// With its owner a window goes, too. The windows in it go behind this message.
void FormWindow::TakeDestruction() {
  untilDestroyed_ = shared_from_this();
  EndModal();
  Tell([this] { form_->Unload(); });
  handle_ = nullptr;
}

std::optional<LRESULT> FormWindow::GiveBack(UINT message, WPARAM wide, LPARAM longer) {
  ControlWindow* const sender = WindowOf(SenderOf(message, longer));
  if (sender == nullptr) return std::nullopt;
  if (message == WM_COMMAND) {
    sender->OnCommand(HIWORD(wide));
  } else if (message == WM_NOTIFY) {
    sender->OnNotification(reinterpret_cast<const NMHDR*>(longer)->code);
  } else {
    return sender->OnColors(reinterpret_cast<HDC>(wide));
  }
  return 0;
}

void FormWindow::PaintBackground(HDC context) {
  RECT area;
  GetClientRect(handle_, &area);
  FillRect(context, &area, kit_->brushes.Brush(form_->Layout().backColor));
}

// A close button that is switched off does not work from the keyboard either.
bool FormWindow::IsRefusedClose(WPARAM command) const {
  constexpr WPARAM kCommandBits = 0xFFF0;
  if ((command & kCommandBits) != SC_CLOSE) return false;
  const UINT state = GetMenuState(GetSystemMenu(handle_, FALSE), SC_CLOSE, MF_BYCOMMAND);
  return state != static_cast<UINT>(-1) && (state & (MF_GRAYED | MF_DISABLED)) != 0;
}

void FormWindow::TakeSize(LPARAM size) {
  const int width = kit_->scale.FromPixels(GET_X_LPARAM(size));
  const int height = kit_->scale.FromPixels(GET_Y_LPARAM(size));
  if (width == form_->ScaleWidth() && height == form_->ScaleHeight()) return;
  Tell([&] { form_->Resize(width, height); });
}

void FormWindow::TakeActivation(bool isActive) {
  if (!isActive) return;
  std::erase(kit_->activated, handle_);
  kit_->activated.push_back(handle_);
}

void FormWindow::TakeTick(WPARAM timer) {
  const auto controls = form_->Controls();
  if (timer < 1 || timer > controls.size()) return;
  Control* const control = controls[timer - 1];
  if (control->Kind() != ControlKind::kTimer) return;
  Tell([&] { static_cast<Timer*>(control)->Tick(); });
}

bool FormWindow::TakeKey(UINT message, WPARAM key) {
  if (!IsLoaded()) return true;
  if (message == WM_CHAR) return IsCharacterOfTakenKey(key);
  if (message == WM_SYSCHAR) return PressAccessKey(key);
  const auto pressed = message == WM_KEYDOWN ? FormKey(key) : std::nullopt;
  if (!pressed) return false;
  Tell([&] { form_->Press(*pressed); });
  return true;
}

bool FormWindow::PressAccessKey(WPARAM key) {
  if (!IsLetterOrDigit(key) || !HasAccessKey(static_cast<char>(key))) return false;
  Tell([&] { form_->PressAlt(static_cast<char>(key)); });
  return true;
}

bool FormWindow::HasAccessKey(char key) {
  const std::string letter = AccessKeyOf(std::string("&") + key);
  return std::ranges::any_of(form_->Controls(), [&](const Control* control) {
    return control->CanBeUsed() && control->AccessKeys().find(letter) != std::string::npos;
  });
}

}  // namespace brimwork::windows
