// One call of CreateSpecialMsgbox, answered by the add-in's own code or by the Visual Basic module
// that users get: both are to do the same.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "environment/environment.h"

namespace brimwork {

/// The arguments; what is not set is left out.
struct SpecialBox {
  std::string text = "Go on?";
  std::int32_t buttons = 0;
  std::string title = "Question";
  std::int16_t timeOut = -1;
  std::int32_t x = -1;
  std::int32_t y = -1;
  std::string checkBoxText = {};
  bool checkBoxValue = false;  // takes the result
  std::int16_t buttonCount = 0;
  std::string buttonText = {};
  std::string originalButtonText = {};
};

class SpecialBoxes {
 public:
  virtual ~SpecialBoxes() = default;
  virtual int Show(SpecialBox& box) = 0;
  /// Leaves out everything behind the title.
  virtual int ShowPlain(const SpecialBox& box) = 0;
  /// Calls NewTimerProc.
  virtual void FireTimer(WindowHandle window, std::uintptr_t id) = 0;
};

enum class Copy { kAddIn, kModule };

std::unique_ptr<SpecialBoxes> MakeSpecialBoxes(Copy copy, const Environment& environment);

}  // namespace brimwork
