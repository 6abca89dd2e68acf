// Message boxes as plain data, with a modal loop that lets timers fire and a user who does what was
// planned. Time passes only while a box is up.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "environment/message_boxes.h"
#include "memory/memory_form_screen.h"
#include "memory/memory_message_box.h"
#include "memory/memory_window_timers.h"

namespace brimwork {

/// A box that was up, as it looked when it closed.
struct ShownMessageBox {
  MessageBoxRequest request;
  MemoryNativeWindows::NativeWindow window;
  std::vector<MemoryNativeWindows::NativeWindow> controls;  // in the order of their making
  int result = 0;
  std::uint32_t milliseconds = 0;  // for how long it was up
};

class MemoryMessageBoxes : public MessageBoxes {
 public:
  /// How long a click takes from the press of the mouse button to its release.
  static constexpr std::uint32_t kClickTakes = 60;
  /// How long the user looks at a box before dismissing it by its default button.
  static constexpr std::uint32_t kPatience = 60'000;

  MemoryMessageBoxes(MemoryNativeWindows& windows, MemoryWindowTimers& timers,
                     MemoryKeyboard& keyboard, MemoryFormScreen& screen)
      : windows_(windows), timers_(timers), keyboard_(keyboard), screen_(screen) {}

  /// The system puts the box into the middle of the screen.
  int MessageBox(WindowHandle owner, std::string_view text, std::string_view title,
                 std::int32_t style) override;

  // What the user does to the next box, in milliseconds from its opening. What is planned for a
  // time behind its closing is forgotten.

  /// Clicks the button or check box that then has that caption.
  void ClickAt(std::uint32_t milliseconds, const std::string& caption);
  /// Presses keys, in SendKeys notation.
  void PressKeysAt(std::uint32_t milliseconds, const std::string& keys);
  /// Does anything else, such as looking.
  void DoAt(std::uint32_t milliseconds, std::function<void()> action);

  const std::vector<ShownMessageBox>& Shown() const { return shown_; }

  /// The window of the box that is up, 0 when none is.
  WindowHandle Open() const { return box_ == nullptr ? 0 : box_->Window(); }

  // In pixels.
  int width = 300;
  int height = 140;

 private:
  using Plan = std::multimap<std::uint32_t, std::function<void()>>;

  WindowArea Centre() const;
  void RunUntilClosed(MemoryMessageBox& box, Plan plan);
  void Record(const MessageBoxRequest& request, std::uint32_t opened);

  MemoryNativeWindows& windows_;
  MemoryWindowTimers& timers_;
  MemoryKeyboard& keyboard_;
  MemoryFormScreen& screen_;
  Plan plan_;
  MemoryMessageBox* box_ = nullptr;
  std::vector<ShownMessageBox> shown_;
};

}  // namespace brimwork
