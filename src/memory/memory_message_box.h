// A message box in memory for as long as it is up: its windows, and what the user does to them.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "memory/memory_keyboard.h"
#include "memory/memory_native_windows.h"

namespace brimwork {

/// What a message box was asked for.
struct MessageBoxRequest {
  WindowHandle owner = 0;
  std::string text;
  std::string title;
  std::int32_t style = 0;
  bool operator==(const MessageBoxRequest&) const = default;
};

/// A button that a style asks for; the result is 0 for one that leaves the box open.
struct MessageBoxButton {
  std::string_view caption;
  int result = 0;
};

/// Empty for a style that there is not.
std::vector<MessageBoxButton> MessageBoxButtonsOf(std::int32_t style);

class MemoryMessageBox : public KeyTarget {
 public:
  /// Makes the windows, in front of the others, and takes the keyboard. An empty title is replaced
  /// by the system's own.
  MemoryMessageBox(MemoryNativeWindows& windows, MemoryKeyboard& keyboard,
                   const MessageBoxRequest& request, const WindowArea& area);
  ~MemoryMessageBox() override;
  MemoryMessageBox(const MemoryMessageBox&) = delete;
  MemoryMessageBox& operator=(const MemoryMessageBox&) = delete;

  WindowHandle Window() const { return window_; }

  /// The number of the button that closed it, nothing while it is open.
  std::optional<int> Result() const { return result_; }

  // What the user does.

  /// Moves the focus to the button or check box with that caption. Throws std::logic_error when
  /// there is none.
  void Focus(std::string_view caption);
  /// Presses the control with the focus: a button closes the box, a check box turns over.
  void PressFocused();
  /// Goes the default way out.
  void Dismiss();

  // A message box has no text to work on. The blank presses, other characters do nothing.

  void Copy(Clipboard& /*clipboard*/) override {}
  void Paste(Clipboard& /*clipboard*/) override {}
  void SelectAll() override {}
  void Delete() override {}
  void Type(std::string_view text) override;

  /// Presses the button with the focus, or the default one when the focus is on no button.
  void PressEnter() override;
  void PressTab() override;

 private:
  struct Button {
    WindowHandle window = 0;
    int result = 0;
  };

  void AddControls(const MessageBoxRequest& request, const WindowArea& area);
  WindowHandle AddControl(std::string_view className, std::string_view text, std::uint32_t style,
                          const WindowArea& area);
  std::vector<WindowHandle> TabStops() const;
  const Button* ButtonOf(WindowHandle window) const;
  void Press(const Button& button);

  MemoryNativeWindows& windows_;
  MemoryKeyboard& keyboard_;
  KeyTarget* formerTarget_;
  WindowHandle formerFocus_;
  WindowHandle window_ = 0;
  std::vector<Button> buttons_;
  std::size_t default_ = 0;
  std::optional<int> result_;
};

}  // namespace brimwork
