// The bench as a running program: the workbench, its windows, the add-ins, and what is offered to
// other programs.
#pragma once

#include <windows.h>

#include <memory>

#include "bench/add_ins/add_ins.h"
#include "bench/automation/application_class.h"
#include "bench/manager/add_in_manager.h"
#include "bench/model/workbench.h"
#include "bench/program/arguments.h"
#include "bench/screen/workbench_windows.h"

namespace brimwork::bench {

class Program {
 public:
  /// Makes everything, shows the main window, connects the add-ins that start with it, and opens
  /// the project. Throws RunTimeError when the system refuses a window or the class.
  explicit Program(const Arguments& arguments);

  /// Answers messages until the user, or a client, ends it. Answers the program's exit code.
  int Run();

 private:
  void OfferCommands();
  void ShowAddInManager();
  int AnswerMessages();
  void End();

  const Arguments arguments_;
  Workbench workbench_;
  WorkbenchWindows windows_;
  AddIns addIns_;
  ApplicationClass application_;
  Fonts fonts_;
};

}  // namespace brimwork::bench
