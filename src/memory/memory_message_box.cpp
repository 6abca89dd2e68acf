#include "memory/memory_message_box.h"

#include <algorithm>
#include <stdexcept>

#include "environment/message_boxes.h"

namespace brimwork {
namespace {

constexpr std::int32_t kButtonsMask = 0xF;
constexpr std::int32_t kDefaultButtonMask = 0xF00;
constexpr int kDefaultButtonShift = 8;
constexpr std::int32_t kHelpButton = 0x4000;

constexpr std::intptr_t kDialogFont = 0x20;
constexpr std::string_view kReplacedTitle = "Error";

// In pixels.
constexpr int kMargin = 11;
constexpr int kPromptHeight = 13;
constexpr WindowArea kButtonSize{.width = 75, .height = 23};
constexpr int kButtonStep = 81;

constexpr MessageBoxButton kOk{"OK", message_box_result::kOk};
constexpr MessageBoxButton kCancel{"Cancel", message_box_result::kCancel};
constexpr MessageBoxButton kAbort{"&Abort", message_box_result::kAbort};
constexpr MessageBoxButton kRetry{"&Retry", message_box_result::kRetry};
constexpr MessageBoxButton kIgnore{"&Ignore", message_box_result::kIgnore};
constexpr MessageBoxButton kYes{"&Yes", message_box_result::kYes};
constexpr MessageBoxButton kNo{"&No", message_box_result::kNo};
constexpr MessageBoxButton kHelp{"Help", 0};

std::vector<MessageBoxButton> SetOf(std::int32_t style) {
  switch (style & kButtonsMask) {
    case 0:
      return {kOk};
    case 1:
      return {kOk, kCancel};
    case 2:
      return {kAbort, kRetry, kIgnore};
    case 3:
      return {kYes, kNo, kCancel};
    case 4:
      return {kYes, kNo};
    case 5:
      return {kRetry, kCancel};
    default:
      return {};
  }
}

/// The first button where the style names one that there is not.
std::size_t DefaultButtonOf(std::int32_t style, std::size_t count) {
  const auto named = static_cast<std::size_t>((style & kDefaultButtonMask) >> kDefaultButtonShift);
  return named < count ? named : 0;
}

}  // namespace

std::vector<MessageBoxButton> MessageBoxButtonsOf(std::int32_t style) {
  auto buttons = SetOf(style);
  if (!buttons.empty() && (style & kHelpButton)) buttons.push_back(kHelp);
  return buttons;
}

MemoryMessageBox::MemoryMessageBox(MemoryNativeWindows& windows, MemoryKeyboard& keyboard,
                                   const MessageBoxRequest& request, const WindowArea& area)
    : windows_(windows),
      keyboard_(keyboard),
      formerTarget_(keyboard.Focus()),
      formerFocus_(windows.focus) {
  const std::string_view title = request.title.empty() ? kReplacedTitle : request.title;
  window_ = windows_.Add({.className = std::string(window_class::kDialog),
                          .text = std::string(title),
                          .area = area,
                          .style = window_style::kVisible});
  AddControls(request, area);
  default_ = DefaultButtonOf(request.style, buttons_.size());
  windows_.focus = buttons_.at(default_).window;
  keyboard_.SetFocus(this);
}

MemoryMessageBox::~MemoryMessageBox() {
  windows_.Remove(window_);
  windows_.focus = formerFocus_;
  keyboard_.SetFocus(formerTarget_);
}

void MemoryMessageBox::AddControls(const MessageBoxRequest& request, const WindowArea& area) {
  AddControl(window_class::kStatic, request.text, 0,
             {kMargin, kMargin, area.width - 2 * kMargin, kPromptHeight});
  WindowArea place = kButtonSize;
  place.left = kMargin;
  place.top = area.height - kMargin - place.height;
  for (const MessageBoxButton& button : MessageBoxButtonsOf(request.style)) {
    const WindowHandle window =
        AddControl(window_class::kButton, button.caption, window_style::kTabStop, place);
    buttons_.push_back({window, button.result});
    place.left += kButtonStep;
  }
}

WindowHandle MemoryMessageBox::AddControl(std::string_view className, std::string_view text,
                                          std::uint32_t style, const WindowArea& area) {
  return windows_.Add({.className = std::string(className),
                       .text = std::string(text),
                       .parent = window_,
                       .area = area,
                       .style = style | window_style::kChild | window_style::kVisible,
                       .font = kDialogFont});
}

void MemoryMessageBox::Focus(std::string_view caption) {
  for (const WindowHandle window : TabStops()) {
    if (windows_.windows[window].text != caption) continue;
    windows_.focus = window;
    return;
  }
  throw std::logic_error("the message box has no control \"" + std::string(caption) + "\"");
}

void MemoryMessageBox::PressFocused() {
  if (const Button* button = ButtonOf(windows_.focus)) {
    Press(*button);
  } else if (windows_.IsWindow(windows_.focus)) {
    auto& checkBox = windows_.windows[windows_.focus];
    checkBox.isChecked = !checkBox.isChecked;
  }
}

void MemoryMessageBox::Dismiss() {
  Press(buttons_[default_]);
  if (!result_) Press(buttons_.front());
}

void MemoryMessageBox::Type(std::string_view text) {
  for (const char c : text) {
    if (c == ' ') PressFocused();
  }
}

void MemoryMessageBox::PressEnter() {
  const Button* button = ButtonOf(windows_.focus);
  Press(button != nullptr ? *button : buttons_[default_]);
}

void MemoryMessageBox::PressTab() {
  const auto stops = TabStops();
  const auto focused = std::ranges::find(stops, windows_.focus);
  const bool isLast = focused == stops.end() || std::next(focused) == stops.end();
  windows_.focus = isLast ? stops.front() : *std::next(focused);
}

/// In the order in which they were made.
std::vector<WindowHandle> MemoryMessageBox::TabStops() const {
  std::vector<WindowHandle> stops;
  for (const auto& [handle, window] : windows_.windows) {
    if (window.parent == window_ && (window.style & window_style::kTabStop)) {
      stops.push_back(handle);
    }
  }
  return stops;
}

const MemoryMessageBox::Button* MemoryMessageBox::ButtonOf(WindowHandle window) const {
  const auto button = std::ranges::find(buttons_, window, &Button::window);
  return button == buttons_.end() ? nullptr : &*button;
}

void MemoryMessageBox::Press(const Button& button) {
  if (button.result != 0 && !result_) result_ = button.result;
}

}  // namespace brimwork
