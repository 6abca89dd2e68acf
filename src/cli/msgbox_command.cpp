#include "cli/msgbox_command.h"

#include "cli/app.h"
#include "cli/module_addition.h"
#include "msgbox/code_generator.h"

namespace brimwork {
namespace {

const std::string kModuleName(kRequiredModuleName);

std::string NoteOf(const std::string& project, ModuleAddition addition) {
  if (addition == ModuleAddition::kAdded) return project + ": added " + kModuleName + ".bas";
  return project + ": has the module " + kModuleName + " already, so it stays as it is";
}

void ProvideModule(const DesignedMsgBox& designed, const std::optional<std::string>& project,
                   Console& console) {
  const bool isNeeded = !designed.requiredModule.empty();
  if (isNeeded && project) {
    console.Note(
        NoteOf(*project, AddModuleToProject(*project, kModuleName, designed.requiredModule)));
  } else if (isNeeded) {
    console.Note("this code calls the module " + kModuleName +
                 ": --add-to FILE.vbp adds it to a project");
  } else if (project) {
    console.Note(*project + ": stays as it is, since this code needs no module");
  }
}

}  // namespace

int PrintMsgBox(const MsgBoxOptions& options, Console& console) {
  const MsgBoxRequest request = MakeMsgBoxRequest(options);
  for (const std::string& warning : WarningsOf(request)) {
    console.Warning("brimwork: warning: " + warning);
  }
  const DesignedMsgBox designed = DesignMsgBox(request);
  ProvideModule(designed, options.project, console);
  console.Out(designed.code + "\r\n");
  return exit_code::kDone;
}

}  // namespace brimwork
