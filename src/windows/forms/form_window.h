// The window of one form, with the windows of its controls. It takes what the user does into the
// form's data and shows what changed there.
#pragma once

#include <windows.h>

#include <exception>
#include <memory>
#include <optional>
#include <vector>

#include "environment/form.h"
#include "windows/forms/control_window.h"
#include "windows/forms/form_kit.h"
#include "windows/forms/modal_loop.h"
#include "windows/forms/tool_tips.h"

namespace brimwork::windows {

/// An event may unload the form, or destroy it, while the system is at work in one of its windows.
/// The window then lets go of the form at once and is hidden; it is destroyed when that work ends.
class FormWindow : public std::enable_shared_from_this<FormWindow> {
 public:
  FormWindow(std::shared_ptr<FormKit> kit, Form& form);
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;
  ~FormWindow();

  /// Makes the windows, hidden. Raises error 5 when the system makes none.
  void Create();

  HWND Handle() const { return handle_; }
  bool IsOf(const Form& form) const { return form_ == &form; }

  /// Modal: returns when the window has been hidden or has gone.
  void Show(ShowMode mode);
  void Hide();
  void Changed(Control* control, PropertyId property);
  void Refresh(Control& control);

  /// The form is no longer loaded; it is not looked into.
  void LetGo();
  /// Whatever the system is at work in.
  void Destroy();

  static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wide, LPARAM longer) noexcept;

  // For the windows of the controls.

  FormKit& Kit() { return *kit_; }
  ToolTips& Tips() { return tips_; }

  bool IsLoaded() const { return form_ != nullptr; }
  Form& Data() { return *form_; }

  /// Does something with the data. An error is given to the host's handler. False when the data has
  /// gone, before or meanwhile.
  template <class Action>
  bool Tell(Action action) noexcept {
    if (!IsLoaded()) return false;
    try {
      const auto kept = kit_->keeper ? kit_->keeper() : nullptr;
      action();
    } catch (const std::exception& error) {
      Report(error);
    } catch (...) {
    }
    return IsLoaded();
  }

  /// Handles a message of one of the windows; nothing that it throws leaves.
  template <class Action>
  LRESULT Handle(Action action) noexcept {
    const MessageScope scope(*this);
    try {
      return action();
    } catch (const std::exception& error) {
      Report(error);
    } catch (...) {
    }
    return 0;
  }

  /// Gives a message that a control's window sends to the one around it to the control. Nothing for
  /// other messages.
  std::optional<LRESULT> GiveBack(UINT message, WPARAM wide, LPARAM longer);

  /// The keys that belong to the form. False for other keys.
  bool TakeKey(UINT message, WPARAM key);

  /// Puts the system's focus where the data has it, if the form is in front.
  void ShowFocus();
  /// The same, when the message that is being handled is done.
  void ShowFocusLater() { PostMessageW(handle_, kShowFocus, 0, 0); }
  bool IsShowingFocus() const { return isShowingFocus_; }

  /// The window of a control; null for one that is not seen.
  ControlWindow* WindowOf(const Control& control) const;
  /// Null for a window that is no control's.
  ControlWindow* WindowOf(HWND handle) const;

 private:
  static constexpr UINT kShowFocus = WM_APP;

  /// The system is at work in one of the windows.
  class MessageScope {
   public:
    explicit MessageScope(FormWindow& window) : window_(window.shared_from_this()) {
      ++window_->depth_;
    }
    MessageScope(const MessageScope&) = delete;
    MessageScope& operator=(const MessageScope&) = delete;
    ~MessageScope() {
      if (--window_->depth_ == 0 && !window_->IsLoaded()) window_->Destroy();
    }

   private:
    std::shared_ptr<FormWindow> window_;
  };

  void CreateFrame();
  void CreateControls();
  HWND ContainerOf(const Control& control) const;
  void ShowIcon();
  void Activate();
  void RunModal();
  void EndModal();

  LRESULT ReceiveAt(HWND handle, UINT message, WPARAM wide, LPARAM longer);
  LRESULT Receive(UINT message, WPARAM wide, LPARAM longer);
  void TakeSize(LPARAM size);
  void TakeActivation(bool isActive);
  void TakeTick(WPARAM timer);
  void TakeDestruction();
  bool IsRefusedClose(WPARAM command) const;
  void PaintBackground(HDC context);
  bool PressAccessKey(WPARAM key);
  bool HasAccessKey(char key);

  void ShowOwn(PropertyId property);
  void ShowUse(const Control& container);
  void ShowTimer(const Control& control);
  void ShowDefaultButton();
  void Report(const std::exception& error) noexcept;

  std::shared_ptr<FormKit> kit_;
  Form* form_;  // null once it is no longer loaded
  HWND handle_ = nullptr;
  std::vector<std::unique_ptr<ControlWindow>> controls_;
  ToolTips tips_;
  IconObject largeIcon_, smallIcon_;
  std::unique_ptr<OtherWindowsDisabled> modal_;
  std::shared_ptr<FormWindow> untilDestroyed_;  // itself, while the system destroys the window
  int depth_ = 0;                               // of messages that are being handled
  DWORD refreshed_ = 0;  // when a control was last painted at once; 0 for never
  bool isShowingFocus_ = false;
};

}  // namespace brimwork::windows
