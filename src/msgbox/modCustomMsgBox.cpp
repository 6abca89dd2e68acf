// Every step that calls the environment stands in a ResumeNext of its own: whatever fails, the user
// gets a box and the box an answer.
#include "msgbox/modCustomMsgBox.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

#include "environment/resume_next.h"
#include "environment/text.h"

namespace brimwork {
namespace {

constexpr std::uint32_t kAtOnce = 0;
constexpr int kMillisecondsPerSecond = 1000;

// In pixels.
constexpr int kCheckBoxLeft = 3;
constexpr int kBelowCheckBox = 15;
constexpr int kBesideCheckBoxText = 22;  // the box and the gap in front of the text

/// A number as a Visual Basic integer of that size takes it: halves go to the even neighbour.
/// Raises error 6 when it does not fit.
template <class Integer>
Integer RoundTo(double number) {
  const double rounded = std::nearbyint(number);
  if (!(rounded >= std::numeric_limits<Integer>::min() &&
        rounded <= std::numeric_limits<Integer>::max())) {
    throw RunTimeError(error_number::kOverflow, "Overflow");
  }
  return static_cast<Integer>(rounded);
}

/// Empty for an empty list, which has no captions instead of one.
std::vector<std::string> SplitCaptions(std::string_view captions) {
  if (captions.empty()) return {};
  const auto parts = Split(captions, ",");
  return {parts.begin(), parts.end()};
}

ScreenForm& Required(ScreenForm* form) {
  if (form == nullptr) throw RunTimeError(error_number::kObjectNotSet, "there is no active form");
  return *form;
}

/// What step returns, a zero of its kind when it raises a run-time error.
template <class Step>
auto ResultOrZero(Step step) {
  decltype(step()) result{};
  ResumeNext([&] { result = step(); });
  return result;
}

}  // namespace

// Timers that are left would call an object that has gone.
CustomMsgBox::~CustomMsgBox() {
  for (const auto& [window, id] : running_) {
    Insist([&] { environment_.windowTimers.KillTimer(window, id); });
  }
}

int CustomMsgBox::CreateSpecialMsgbox(std::string_view text, std::int32_t buttons,
                                      std::string_view title, std::int16_t timeOut, std::int32_t x,
                                      std::int32_t y, std::string_view checkBoxText,
                                      bool* checkBoxValue, std::int16_t buttonCount,
                                      std::string_view buttonText,
                                      std::string_view originalButtonText) {
  TakeOwner();
  state_.MsgBoxText = text;
  state_.MsgBoxButtons = buttons;
  state_.MsgBoxTitle = title;
  ResumeNext(
      [&] { state_.MsgBoxTimeOut = RoundTo<std::int16_t>(timeOut * kMillisecondsPerSecond); });
  state_.MsgBoxX = x;
  state_.MsgBoxY = y;
  state_.MsgBoxCheckBoxText = checkBoxText;
  state_.MsgBoxCheckBoxValue = checkBoxValue != nullptr && *checkBoxValue;
  state_.MsgBoxButtonCount = buttonCount;
  state_.MsgBoxButtonText = SplitCaptions(buttonText);
  state_.MsgBoxOriginalButtonText = SplitCaptions(originalButtonText);

  const WindowHandle owner = state_.MsgBoxHWND;
  StartTimers(owner);
  const int result = ResultOrZero(
      [&] { return environment_.messageBoxes.MessageBox(owner, text, title, buttons); });
  if (!checkBoxText.empty()) FinishCheckBox(owner, checkBoxValue);
  return result;
}

/// Without an active form the box has no owner. The window of the former box must not become it.
void CustomMsgBox::TakeOwner() {
  state_.MsgBoxHWND =
      ResultOrZero([&] { return Required(environment_.formScreen.ActiveForm().get()).hWnd(); });
}

void CustomMsgBox::StartTimers(WindowHandle owner) {
  if (state_.MsgBoxX != -1 && state_.MsgBoxY != -1) Start(owner, MB_MOVEMSGBOX, kAtOnce);
  if (state_.MsgBoxTimeOut > 0) {
    Start(owner, MB_CLOSEMSGBOX, static_cast<std::uint32_t>(state_.MsgBoxTimeOut));
  }
  if (!state_.MsgBoxButtonText.empty() && !state_.MsgBoxOriginalButtonText.empty()) {
    Start(owner, MB_CHANGEBUTTONTEXT, kAtOnce);
  }
  if (!state_.MsgBoxCheckBoxText.empty()) {
    Start(owner, MB_CHECK_CHECKBOXVALUE, kAtOnce);
    Start(owner, MB_ADDCHECKBOX, kAtOnce);
  }
}

void CustomMsgBox::FinishCheckBox(WindowHandle owner, bool* checkBoxValue) {
  state_.MsgBoxCheckBoxHWND = 0;
  Kill(owner, MB_CHECK_CHECKBOXVALUE);
  if (checkBoxValue != nullptr) *checkBoxValue = state_.MsgBoxCheckBoxValue;
}

void CustomMsgBox::NewTimerProc(WindowHandle window, std::uint32_t /*message*/, TimerId wParam,
                                std::uint32_t /*lParam*/) {
  if (wParam == MB_CHECK_CHECKBOXVALUE) return PollCheckBox(window);
  Kill(window, wParam);
  state_.MsgBoxHWND = FindBox();
  if (state_.MsgBoxHWND == 0) return;
  switch (wParam) {
    case MB_CLOSEMSGBOX:
      return CloseBox();
    case MB_MOVEMSGBOX:
      return MoveBox();
    case MB_ADDCHECKBOX:
      return AddCheckBox(window);
    case MB_CHANGEBUTTONTEXT:
      return ChangeButtonText();
    default:
      return;
  }
}

// A check box with the focus answers that it has it, so it counts as ticked for as long.
void CustomMsgBox::PollCheckBox(WindowHandle owner) {
  if (state_.MsgBoxCheckBoxHWND == 0) return Kill(owner, MB_CHECK_CHECKBOXVALUE);
  ResumeNext([&] {
    state_.MsgBoxCheckBoxValue =
        environment_.nativeWindows.SendMessage(state_.MsgBoxCheckBoxHWND,
                                               window_message::kGetButtonState, 0, 0) != 0;
  });
}

/// Enter goes to the focused button; of a single button the check box may have taken the focus.
void CustomMsgBox::CloseBox() {
  BringBoxToFront();
  if (CheckBoxHasFocus()) {
    if (state_.MsgBoxButtonCount == 1) PressKey("{TAB}");
    if (state_.MsgBoxButtonCount > 1) BringBoxToFront();
  }
  PressKey("{ENTER}");
}

bool CustomMsgBox::CheckBoxHasFocus() {
  return state_.MsgBoxCheckBoxHWND != 0 && ResultOrZero([&] {
                                             return environment_.dialogWindows.GetFocus();
                                           }) == state_.MsgBoxCheckBoxHWND;
}

void CustomMsgBox::BringBoxToFront() {
  ResumeNext([&] { environment_.dialogWindows.SetForegroundWindow(state_.MsgBoxHWND); });
}

void CustomMsgBox::PressKey(std::string_view key) {
  ResumeNext([&] { environment_.keyboard.SendKeys(key, false); });
}

void CustomMsgBox::MoveBox() {
  DrawPlaceBack(RectangleOfBox());
  ResumeNext([&] {
    environment_.nativeWindows.SetWindowPos(state_.MsgBoxHWND,
                                            {.insertAfter = window_order::kTopMost,
                                             .x = state_.MsgBoxX,
                                             .y = state_.MsgBoxY,
                                             .flags = window_position_flag::kNoSize});
  });
}

/// The upper edge counts only for a box that lay too far left: so boxes have been placed all along,
/// and users' projects are made for it.
void CustomMsgBox::DrawPlaceBack(const WindowRectangle& box) {
  FormScreen& screen = environment_.formScreen;
  const auto width =
      ResultOrZero([&] { return RoundTo<std::int32_t>(screen.Width() / screen.TwipsPerPixelX()); });
  const auto height = ResultOrZero(
      [&] { return RoundTo<std::int32_t>(screen.Height() / screen.TwipsPerPixelY()); });
  state_.MsgBoxX = std::min(state_.MsgBoxX, width - box.Width() - 1);
  state_.MsgBoxY = std::min(state_.MsgBoxY, height - box.Height() - 1);
  if (state_.MsgBoxX < 1) {
    state_.MsgBoxX = 1;
    if (state_.MsgBoxY < 1) state_.MsgBoxY = 1;
  }
}

/// The check box comes below the prompt, and the box grows to hold it.
void CustomMsgBox::AddCheckBox(WindowHandle owner) {
  const WindowHandle prompt = FindInBox(window_class::kStatic, state_.MsgBoxText);
  const WindowRectangle box = RectangleOfBox();
  const auto form = ResultOrZero([&] { return environment_.formScreen.ActiveForm(); });
  const auto height = ResultOrZero([&] {
    return RoundTo<std::int16_t>(Required(form.get()).TextHeight(state_.MsgBoxCheckBoxText) /
                                 environment_.formScreen.TwipsPerPixelY());
  });
  CreateCheckBox(form.get(), box, height);
  TakeFontOf(prompt);
  ResumeNext([&] {
    environment_.dialogWindows.MoveWindow(
        state_.MsgBoxHWND, {box.left, box.top, box.Width(), box.Height() + height}, true);
  });
  // The system promises no order among timers that are due together: the poll may have come first
  // and, finding no check box, have ended.
  if (state_.MsgBoxCheckBoxHWND != 0) Start(owner, MB_CHECK_CHECKBOXVALUE, kAtOnce);
}

void CustomMsgBox::CreateCheckBox(ScreenForm* form, const WindowRectangle& box,
                                  std::int16_t height) {
  ResumeNext([&] {
    const double textWidth = Required(form).TextWidth(state_.MsgBoxCheckBoxText) /
                             environment_.formScreen.TwipsPerPixelX();
    state_.MsgBoxCheckBoxHWND = environment_.dialogWindows.CreateWindowEx(
        {.className = std::string(window_class::kButton),
         .text = state_.MsgBoxCheckBoxText,
         .style = window_style::kChild | window_style::kVisible | window_style::kTabStop |
                  window_style::kAutoCheckBox,
         .area = {.left = kCheckBoxLeft,
                  .top = box.Height() - height - kBelowCheckBox,
                  .width = RoundTo<std::int32_t>(textWidth + kBesideCheckBoxText),
                  .height = height},
         .parent = state_.MsgBoxHWND,
         .instance = environment_.app.Instance()});
  });
}

void CustomMsgBox::TakeFontOf(WindowHandle prompt) {
  constexpr std::intptr_t kRedraw = 1;
  NativeWindows& windows = environment_.nativeWindows;
  const auto font =
      ResultOrZero([&] { return windows.SendMessage(prompt, window_message::kGetFont, 0, 0); });
  ResumeNext([&] {
    windows.SendMessage(state_.MsgBoxCheckBoxHWND, window_message::kSetFont, font, kRedraw);
  });
}

/// Buttons are found by the caption that they have by then.
void CustomMsgBox::ChangeButtonText() {
  const auto& captions = state_.MsgBoxButtonText;
  const auto& originals = state_.MsgBoxOriginalButtonText;
  for (std::size_t i = 0; i < originals.size() && i < captions.size(); ++i) {
    if (captions[i].empty()) continue;
    const WindowHandle button = FindInBox(window_class::kButton, originals[i]);
    if (button == 0) continue;
    ResumeNext([&] { environment_.dialogWindows.SetWindowText(button, captions[i]); });
  }
}

WindowHandle CustomMsgBox::FindBox() {
  return ResultOrZero([&] {
    return environment_.dialogWindows.FindWindow(window_class::kDialog, state_.MsgBoxTitle);
  });
}

WindowHandle CustomMsgBox::FindInBox(std::string_view className, std::string_view text) {
  return ResultOrZero([&] {
    return environment_.dialogWindows.FindWindowEx(state_.MsgBoxHWND, 0, className, text);
  });
}

WindowRectangle CustomMsgBox::RectangleOfBox() {
  return ResultOrZero([&] { return environment_.dialogWindows.GetWindowRect(state_.MsgBoxHWND); });
}

void CustomMsgBox::Start(WindowHandle window, TimerId id, std::uint32_t milliseconds) {
  const auto call = [this](WindowHandle owner, std::uint32_t message, TimerId wParam,
                           std::uint32_t lParam) { NewTimerProc(owner, message, wParam, lParam); };
  running_.emplace(window, id);
  ResumeNext([&] {
    running_.emplace(window, environment_.windowTimers.SetTimer(window, id, milliseconds, call));
  });
}

void CustomMsgBox::Kill(WindowHandle window, TimerId id) {
  ResumeNext([&] {
    environment_.windowTimers.KillTimer(window, id);
    running_.erase({window, id});
  });
}

}  // namespace brimwork
