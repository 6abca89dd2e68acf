// Runs the Visual Basic source of modCustomMsgBox: its user32 functions and the run time's objects
// are those of an environment.
#pragma once

#include <string_view>

#include "environment/environment.h"
#include "support/basic_interpreter.h"

namespace brimwork {

class ModuleRunner {
 public:
  explicit ModuleRunner(const Environment& environment);
  ModuleRunner(const ModuleRunner&) = delete;
  ModuleRunner& operator=(const ModuleRunner&) = delete;

  BasicValue Call(std::string_view procedure, BasicInterpreter::Arguments& arguments) {
    return module_.Call(procedure, arguments);
  }

  /// Calls a timer procedure.
  void FireTimer(std::string_view procedure, WindowHandle window, std::uint32_t message, TimerId id,
                 std::uint32_t time);

 private:
  void BindRunTime();
  void BindTimers();
  void BindWindows();
  void BindDialogWindows();

  Environment environment_;
  BasicInterpreter module_;
};

}  // namespace brimwork
