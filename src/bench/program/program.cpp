#include "bench/program/program.h"

#include "bench/add_ins/report.h"
#include "bench/screen/screenshot.h"
#include "memory/usual_commands.h"

namespace brimwork::bench {

// Add-ins that start with the bench are connected before a project is opened.
Program::Program(const Arguments& arguments)
    : arguments_(arguments),
      windows_(workbench_),
      addIns_(workbench_, windows_),
      application_(workbench_, windows_, addIns_) {
  OfferCommands();
  windows_.Show();
  addIns_.Start();
  if (!arguments_.project.empty()) windows_.Open(arguments_.project);
  addIns_.CompleteStart();
}

void Program::OfferCommands() {
  workbench_.vbe.commandBars.SetAction(command::kAddInManager, [this] { ShowAddInManager(); });
  workbench_.vbe.commandBars.SetEnabled(command::kAddInManager, true);
}

void Program::ShowAddInManager() {
  addIns_.Update();
  AddInManager(windows_.Frame(), addIns_, fonts_).Run();
}

int Program::Run() {
  int result = 0;
  if (arguments_.screenshot) {
    PumpUntilQuiet();
    SaveWindowPicture(windows_.Frame(), *arguments_.screenshot);
  } else {
    result = AnswerMessages();
  }
  End();
  return result;
}

int Program::AnswerMessages() {
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (windows_.TakesKey(message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return static_cast<int>(message.wParam);
}

void Program::End() {
  addIns_.Shutdown();
  if (arguments_.report) WriteReport(*arguments_.report, addIns_.Records());
}

}  // namespace brimwork::bench
