#include "support/special_box.h"

#include "msgbox/modCustomMsgBox.h"
#include "support/module_runner.h"

namespace brimwork {
namespace {

class AddInBoxes : public SpecialBoxes {
 public:
  explicit AddInBoxes(const Environment& environment) : msgBox_(environment) {}

  int Show(SpecialBox& box) override {
    return msgBox_.CreateSpecialMsgbox(box.text, box.buttons, box.title, box.timeOut, box.x, box.y,
                                       box.checkBoxText, &box.checkBoxValue, box.buttonCount,
                                       box.buttonText, box.originalButtonText);
  }
  int ShowPlain(const SpecialBox& box) override {
    return msgBox_.CreateSpecialMsgbox(box.text, box.buttons, box.title);
  }
  void FireTimer(WindowHandle window, std::uintptr_t id) override {
    msgBox_.NewTimerProc(window, window_message::kTimer, id, 0);
  }

 private:
  CustomMsgBox msgBox_;
};

class ModuleBoxes : public SpecialBoxes {
 public:
  explicit ModuleBoxes(const Environment& environment) : runner_(environment) {}

  int Show(SpecialBox& box) override {
    constexpr std::size_t kCheckBoxValue = 7;
    BasicInterpreter::Arguments arguments = {box.text,
                                             box.buttons,
                                             box.title,
                                             box.timeOut,
                                             box.x,
                                             box.y,
                                             box.checkBoxText,
                                             box.checkBoxValue,
                                             box.buttonCount,
                                             box.buttonText,
                                             box.originalButtonText};
    const int result = AsLong(runner_.Call("CreateSpecialMsgbox", arguments));
    box.checkBoxValue = AsBoolean(arguments[kCheckBoxValue]);
    return result;
  }
  int ShowPlain(const SpecialBox& box) override {
    BasicInterpreter::Arguments arguments = {box.text, box.buttons, box.title};
    return AsLong(runner_.Call("CreateSpecialMsgbox", arguments));
  }
  void FireTimer(WindowHandle window, std::uintptr_t id) override {
    runner_.FireTimer("NewTimerProc", window, window_message::kTimer, id, 0);
  }

 private:
  ModuleRunner runner_;
};

}  // namespace

std::unique_ptr<SpecialBoxes> MakeSpecialBoxes(Copy copy, const Environment& environment) {
  if (copy == Copy::kAddIn) return std::make_unique<AddInBoxes>(environment);
  return std::make_unique<ModuleBoxes>(environment);
}

}  // namespace brimwork
