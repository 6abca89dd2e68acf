#include "windows/forms/form_window.h"

#include <algorithm>
#include <utility>

#include "environment/buttons.h"
#include "environment/timer.h"
#include "win32/wide_text.h"
#include "windows/desktop/system_error.h"
#include "windows/forms/form_place.h"

namespace brimwork::windows {
namespace {

bool CanBeReached(HWND window) { return IsWindowVisible(window) && IsWindowEnabled(window); }

}  // namespace

FormWindow::FormWindow(std::shared_ptr<FormKit> kit, Form& form)
    : kit_(std::move(kit)), form_(&form) {}

FormWindow::~FormWindow() = default;

void FormWindow::Create() {
  CreateFrame();
  ShowIcon();
  tips_.Create(handle_);
  CreateControls();
  SendMessageW(handle_, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEACCEL | UISF_HIDEFOCUS),
               0);
  ShowDefaultButton();
}

void FormWindow::CreateFrame() {
  const FormLayout& layout = form_->Layout();
  const HWND owner = kit_->owner ? kit_->owner() : nullptr;
  const WindowStyles styles = FormStyles(layout);
  const WindowPlace place = StartPlace(layout, kit_->scale, owner);
  const std::wstring caption = win32::Wide(form_->Caption.Get());
  handle_ = CreateWindowExW(styles.extendedStyle, kit_->formClass.Name(), caption.c_str(),
                            styles.style, place.left, place.top, place.width, place.height, owner,
                            nullptr, OwnModule(), this);
  if (handle_ == nullptr) RaiseSystemError("CreateWindowEx");
}

void FormWindow::CreateControls() {
  for (Control* control : form_->Controls()) {
    if (control->Kind() == ControlKind::kTimer) ShowTimer(*control);
    auto window = MakeControlWindow(*this, *control);
    if (!window) continue;
    controls_.push_back(std::move(window));
  }
  for (const auto& window : controls_) window->Create(ContainerOf(window->Data()));
}

HWND FormWindow::ContainerOf(const Control& control) const {
  if (control.Container() == nullptr) return handle_;
  const ControlWindow* const container = WindowOf(*control.Container());
  return container != nullptr ? container->Handle() : handle_;
}

void FormWindow::ShowIcon() {
  const std::string_view name = form_->Layout().icon;
  largeIcon_ = kit_->pictures.Icon(name, GetSystemMetrics(SM_CXICON));
  smallIcon_ = kit_->pictures.Icon(name, GetSystemMetrics(SM_CXSMICON));
  const auto set = [this](WPARAM size, const IconObject& icon) {
    if (icon) SendMessageW(handle_, WM_SETICON, size, reinterpret_cast<LPARAM>(icon.get()));
  };
  set(ICON_BIG, largeIcon_);
  set(ICON_SMALL, smallIcon_);
}

void FormWindow::Show(ShowMode mode) {
  const MessageScope scope(*this);
  Activate();
  if (mode == ShowMode::kModal) return RunModal();
  UpdateWindow(handle_);
}

void FormWindow::Activate() {
  ShowWindow(handle_, IsIconic(handle_) ? SW_RESTORE : SW_SHOW);
  SetForegroundWindow(handle_);
  ShowFocus();
}

void FormWindow::RunModal() {
  if (!IsLoaded() || handle_ == nullptr || modal_) return;
  modal_ = std::make_unique<OtherWindowsDisabled>(handle_);
  const bool isEnded = HandleMessagesWhile([this] { return modal_ != nullptr; });
  if (isEnded) return;
  Tell([this] { form_->Hide(); });
  EndModal();
}

// The others can be used again before this one goes: the system looks for one to activate.
void FormWindow::EndModal() {
  if (!modal_) return;
  modal_.reset();
  WakeMessageLoop();
}

void FormWindow::Hide() {
  const MessageScope scope(*this);
  EndModal();
  ShowWindow(handle_, SW_HIDE);
}

void FormWindow::LetGo() {
  const MessageScope scope(*this);
  form_ = nullptr;
  EndModal();
  ShowWindow(handle_, SW_HIDE);
}

void FormWindow::Destroy() {
  form_ = nullptr;
  EndModal();
  if (HWND window = std::exchange(handle_, nullptr)) DestroyWindow(window);
}

void FormWindow::Changed(Control* control, PropertyId property) {
  const MessageScope scope(*this);
  if (control == nullptr) return ShowOwn(property);
  if (control->Kind() == ControlKind::kTimer) return ShowTimer(*control);
  if (ControlWindow* const window = WindowOf(*control)) window->Show(property);
  const bool changesUse = property == PropertyId::kEnabled || property == PropertyId::kVisible;
  if (changesUse) ShowUse(*control);
  if (property == PropertyId::kFocus) ShowFocus();
  if (changesUse || property == PropertyId::kFocus) ShowDefaultButton();
}

void FormWindow::ShowOwn(PropertyId property) {
  if (property != PropertyId::kCaption) return;
  SetWindowTextW(handle_, win32::Wide(form_->Caption.Get()).c_str());
}

// What nobody could see apart is painted once: the latest of it when messages are handled next.
void FormWindow::Refresh(Control& control) {
  constexpr DWORD kUnseen = 25;  // milliseconds
  const DWORD now = GetTickCount();
  if (refreshed_ != 0 && now - refreshed_ < kUnseen) return;
  const MessageScope scope(*this);
  const ControlWindow* const window = WindowOf(control);
  if (window == nullptr || !IsWindowVisible(handle_)) return;
  UpdateWindow(handle_);
  RedrawWindow(window->Handle(), nullptr, nullptr,
               RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
  refreshed_ = now;
}

ControlWindow* FormWindow::WindowOf(const Control& control) const {
  const auto found =
      std::ranges::find_if(controls_, [&](const auto& window) { return window->IsOf(control); });
  return found == controls_.end() ? nullptr : found->get();
}

ControlWindow* FormWindow::WindowOf(HWND handle) const {
  if (handle == nullptr) return nullptr;
  const auto found = std::ranges::find_if(
      controls_, [&](const auto& window) { return window->Handle() == handle; });
  return found == controls_.end() ? nullptr : found->get();
}

// What lies in a control that can no longer be used looks so, too.
void FormWindow::ShowUse(const Control& container) {
  for (const auto& window : controls_) {
    for (const Control* around = window->Data().Container(); around != nullptr;
         around = around->Container()) {
      if (around == &container) window->Show(PropertyId::kEnabled);
    }
  }
  if (const HWND focus = GetFocus(); IsChild(handle_, focus) && !CanBeReached(focus)) {
    SetFocus(handle_);
  }
}

void FormWindow::ShowFocus() {
  if (!IsLoaded() || GetActiveWindow() != handle_) return;
  const Control* const active = form_->ActiveControl();
  const ControlWindow* const window = active != nullptr ? WindowOf(*active) : nullptr;
  const bool canHaveIt = window != nullptr && CanBeReached(window->Handle());
  const HWND target = canHaveIt ? window->Handle() : handle_;
  if (GetFocus() == target) return;
  const bool wasShowingFocus = std::exchange(isShowingFocus_, true);
  SetFocus(target);
  isShowingFocus_ = wasShowingFocus;
}

// The timer's number is its place among the controls, from 1.
void FormWindow::ShowTimer(const Control& control) {
  const auto& timer = static_cast<const Timer&>(control);
  const auto controls = form_->Controls();
  const auto number = std::ranges::find(controls, &control) - controls.begin() + 1;
  const auto id = static_cast<UINT_PTR>(number);
  KillTimer(handle_, id);
  if (timer.Enabled && timer.Interval > 0) {
    SetTimer(handle_, id, static_cast<UINT>(timer.Interval.Get()), nullptr);
  }
}

// The button that the Enter key clicks now: the one with the focus comes first.
void FormWindow::ShowDefaultButton() {
  const Control* taker = form_->ActiveControl();
  const bool isButton = taker != nullptr && taker->Kind() == ControlKind::kCommandButton;
  for (const auto& window : controls_) {
    const Control& control = window->Data();
    window->ShowAsDefault(isButton ? &control == taker
                                   : control.Layout().isDefault && control.CanBeUsed());
  }
}

void FormWindow::Report(const std::exception& error) noexcept {
  try {
    if (kit_->onError) kit_->onError(error);
  } catch (...) {
  }
}

}  // namespace brimwork::windows
