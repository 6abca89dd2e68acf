// A message box that can close itself, stand where it is told, carry a check box and bear captions
// of its own. It is the system's box: timers that were started before it came up change it while it
// is up. The module that users get into their projects (resources/modCustomMsgBox.bas) does the
// same, call by call.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "environment/environment.h"

namespace brimwork {

// The numbers of the timers; each stands for one job.
inline constexpr TimerId MB_CLOSEMSGBOX = 0x5000;
inline constexpr TimerId MB_MOVEMSGBOX = 0x5001;
inline constexpr TimerId MB_CHANGEBUTTONTEXT = 0x5002;
inline constexpr TimerId MB_CHECK_CHECKBOXVALUE = 0x5003;  // the one that goes on
inline constexpr TimerId MB_ADDCHECKBOX = 0x5004;

/// What a box leaves to its timers, and one box to the next. One box at a time: a second one that
/// is shown while the first is up takes its place here.
struct CustomMsgBoxState {
  std::string MsgBoxTitle;  // also finds the box
  std::string MsgBoxText;   // also finds the prompt in it
  std::int32_t MsgBoxX = 0;
  std::int32_t MsgBoxY = 0;
  std::int16_t MsgBoxTimeOut = 0;  // in milliseconds
  WindowHandle MsgBoxHWND = 0;     // first the owner, then the box
  std::int32_t MsgBoxButtons = 0;
  std::string MsgBoxCheckBoxText;
  WindowHandle MsgBoxCheckBoxHWND = 0;
  bool MsgBoxCheckBoxValue = false;
  std::int16_t MsgBoxButtonCount = 0;
  std::vector<std::string> MsgBoxButtonText;
  std::vector<std::string> MsgBoxOriginalButtonText;
};

class CustomMsgBox {
 public:
  explicit CustomMsgBox(const Environment& environment) : environment_(environment) {}
  ~CustomMsgBox();
  CustomMsgBox(const CustomMsgBox&) = delete;
  CustomMsgBox& operator=(const CustomMsgBox&) = delete;

  /// Shows a box, owned by the active form, and returns what the user chose
  /// (message_box_result::k...), 0 when no box came up. Run-time errors are passed over.
  /// timeOut: in seconds, up to 32; above that the former box's time-out holds. The box closes by
  /// its focused button. Not above 0: the box stays.
  /// x, y: in pixels, drawn back to where the whole box is on the screen; -1 in one of them leaves
  /// the box where the system puts it.
  /// checkBoxText: empty for no check box. checkBoxValue takes what became of it, may be null.
  /// buttonText: the new captions, joined by commas, "" for one that stays; originalButtonText: the
  /// captions that the buttons have, by which they are found.
  int CreateSpecialMsgbox(std::string_view text, std::int32_t buttons, std::string_view title,
                          std::int16_t timeOut = -1, std::int32_t x = -1, std::int32_t y = -1,
                          std::string_view checkBoxText = "", bool* checkBoxValue = nullptr,
                          std::int16_t buttonCount = 0, std::string_view buttonText = "",
                          std::string_view originalButtonText = "");

  /// Called by the timers; wParam says which. window is the owner of the box.
  void NewTimerProc(WindowHandle window, std::uint32_t message, TimerId wParam,
                    std::uint32_t lParam);

  const CustomMsgBoxState& State() const { return state_; }

 private:
  void TakeOwner();
  void StartTimers(WindowHandle owner);
  void FinishCheckBox(WindowHandle owner, bool* checkBoxValue);

  void PollCheckBox(WindowHandle owner);
  void CloseBox();
  void MoveBox();
  void AddCheckBox(WindowHandle owner);
  void ChangeButtonText();

  bool CheckBoxHasFocus();
  void BringBoxToFront();
  void PressKey(std::string_view key);
  void DrawPlaceBack(const WindowRectangle& box);
  void CreateCheckBox(ScreenForm* form, const WindowRectangle& box, std::int16_t height);
  void TakeFontOf(WindowHandle prompt);

  WindowHandle FindBox();
  WindowHandle FindInBox(std::string_view className, std::string_view text);
  WindowRectangle RectangleOfBox();

  void Start(WindowHandle window, TimerId id, std::uint32_t milliseconds);
  void Kill(WindowHandle window, TimerId id);

  Environment environment_;
  CustomMsgBoxState state_;
  std::set<std::pair<WindowHandle, TimerId>> running_;
};

}  // namespace brimwork
