#include "core/module_commands.h"

#include "core/code_commands.h"
#include "core/modButtonClicked.h"
#include "transform/code_source.h"
#include "transform/modCleanUp.h"
#include "transform/procedure_walk.h"

namespace brimwork {
namespace {

void CleanUpModule(AddIn& addIn) {
  addIn.Attempt([&] {
    CleanUpCode(addIn.context, [&addIn](std::string_view caption, bool wholeModule) {
      ButtonClicked(addIn, caption, wholeModule);
    });
  });
}

using Runs = ModuleCommand::Runs;

constexpr ModuleCommand kModuleCommands[] = {
    {"Code Clean Up", "", "", Runs::kOnceWithProcedures, CleanUpModule},
    {"Indent All Procedures", "Indenting All Procedures", "Now indenting all procedures",
     Runs::kForEachProcedure, IndentProcedure},
    {"Comment All Procedures", "Comment All Procedures", "Now adding comments to all procedures",
     Runs::kForEachProcedure, FrameProcedure},
    {"Text", "", "", Runs::kOnce, ExportAs<export_format::kText, kWholeModule>},
    {"RTF", "", "", Runs::kOnce, ExportAs<export_format::kRtf, kWholeModule>},
    {"Web Page", "", "", Runs::kOnce, ExportAs<export_format::kHtm, kWholeModule>},
    {"Quick Export", "", "", Runs::kOnce, ExportAs<export_format::kQuickExport, kWholeModule>},
    {"Add Line Numbers", "Add Line Numbers To All Procedures",
     "Now adding line numbers to all procedures", Runs::kForEachProcedure, NumberProcedure},
    {"Remove Line Numbers", "Remove Line Numbers From All Procedures",
     "Now removing line numbers from all procedures", Runs::kForEachProcedure, UnnumberProcedure},
    {"Insert Error Handling", "Add Default Error Handling To All Procedures",
     "Now adding default error handling to all procedures", Runs::kForEachProcedure,
     HandleErrorsInProcedure},
};

class ShownProgressWindow {
 public:
  explicit ShownProgressWindow(frmInfo& window) : window_(window) {
    window_.ResetProgressBar();
    window_.Show();
  }
  ~ShownProgressWindow() { window_.Hide(); }
  ShownProgressWindow(const ShownProgressWindow&) = delete;
  ShownProgressWindow& operator=(const ShownProgressWindow&) = delete;

 private:
  frmInfo& window_;
};

/// A module without procedures has nothing below its declarations.
bool HasProcedures(CodeModule& module) {
  return module.CountOfDeclarationLines() < module.CountOfLines();
}

void RunForEachProcedure(AddIn& addIn, const ModuleCommand& command, CodePane& pane,
                         CodeModule& module) {
  WalkActions actions;
  actions.transform = [&] {
    addIn.progressWindow.ProgressMessage(command.message, command.title);
    command.act(addIn);
  };
  actions.report = [&](int current, int total) {
    addIn.progressWindow.UpdateProgressBar(current, total);
  };
  WalkProcedures(addIn.context, pane, module, actions);
}

}  // namespace

std::span<const ModuleCommand> ModuleCommands() { return kModuleCommands; }

void RunModuleCommand(AddIn& addIn, const ModuleCommand& command) {
  const auto module = ActiveCodeModule(addIn.environment);
  if (!IsValidCodeSource(addIn.environment, module)) return;
  const ShownProgressWindow shown(addIn.progressWindow);
  if (command.runs != ModuleCommand::Runs::kForEachProcedure) {
    const bool needsProcedures = command.runs == ModuleCommand::Runs::kOnceWithProcedures;
    if (!needsProcedures || HasProcedures(*module)) command.act(addIn);
    return;
  }
  if (const auto pane = addIn.environment.vbe.ActiveCodePane()) {
    RunForEachProcedure(addIn, command, *pane, *module);
  }
}

}  // namespace brimwork
