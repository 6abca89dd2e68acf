#include "core/modButtonClicked.h"

#include <array>
#include <memory>
#include <span>

#include "core/saved_selection.h"
#include "environment/text.h"
#include "export/modExportCode.h"
#include "ide_windows/modFullScreen.h"
#include "ide_windows/modMiscellaneousButtonClickCode.h"
#include "ide_windows/modSpellCheck.h"
#include "ide_windows/modTweakWindow.h"
#include "transform/code_source.h"
#include "transform/modCleanUp.h"
#include "transform/modCommentCode.h"
#include "transform/modErrorHandling.h"
#include "transform/modIndentCode.h"
#include "transform/modLineNumbers.h"
#include "transform/procedure_bounds.h"
#include "transform/procedure_walk.h"

namespace brimwork {
namespace {

constexpr std::string_view kInsertErrorHandling = "Insert Error Handling";
constexpr std::string_view kAddLineNumbers = "Add Line Numbers";
constexpr std::string_view kRemoveLineNumbers = "Remove Line Numbers";
constexpr std::string_view kText = "Text";
constexpr std::string_view kRtf = "RTF";
constexpr std::string_view kWebPage = "Web Page";
constexpr std::string_view kQuickExport = "Quick Export";

constexpr bool kSelectedOnly = true;
constexpr bool kWholeModule = false;

// What is done to the current procedure, by the single commands and by the walk alike.

void IndentProcedure(AddIn& addIn) {
  const CurrentProcedure& procedure = addIn.context.procedure;
  addIn.Attempt(
      [&] { IndentCode(addIn.context, procedure.FirstBodyLine, procedure.LastBodyLine); });
}

void UnnumberProcedure(AddIn& addIn) {
  const CurrentProcedure& procedure = addIn.context.procedure;
  addIn.Attempt(
      [&] { RemoveLineNumbers(addIn.context, procedure.FirstBodyLine, procedure.LastBodyLine); });
  IndentProcedure(addIn);
}

void NumberProcedure(AddIn& addIn) {
  const CurrentProcedure& procedure = addIn.context.procedure;
  UnnumberProcedure(addIn);
  addIn.Attempt(
      [&] { AddLineNumbers(addIn.context, procedure.FirstBodyLine, procedure.LastBodyLine); });
}

void HandleErrorsInProcedure(AddIn& addIn) {
  const CurrentProcedure& procedure = addIn.context.procedure;
  int firstLine = procedure.FirstBodyLine;
  int lastLine = procedure.LastBodyLine;
  addIn.Attempt([&] {
    InsertErrorHandling(addIn.context, true, firstLine, lastLine, procedure.CurrentProcName,
                        procedure.CurrentProcKind, KindWordOf(procedure.CurrentProcDeclaration));
  });
}

void FrameProcedure(AddIn& addIn) {
  const CurrentProcedure& procedure = addIn.context.procedure;
  addIn.Attempt([&] {
    CommentProcedure(addIn.context, procedure.CurrentProcName, procedure.CurrentProcKind,
                     procedure.CurrentProcSignature);
  });
}

// Commands on the procedure at the caret.

/// Finds the procedure at the caret; false, after telling the user, when there is no code source.
bool FindCurrentProcedure(AddIn& addIn) {
  bool isValid = false;
  addIn.Attempt([&] {
    const auto module = ActiveCodeModule(addIn.environment);
    isValid = IsValidCodeSource(addIn.environment, module);
    if (!isValid) return;
    if (const auto pane = addIn.environment.vbe.ActiveCodePane()) {
      GetProcedureBounds(addIn.context, *module, pane->GetSelection().startLine);
    }
  });
  return isValid;
}

template <void (*act)(AddIn&)>
void OnCurrentProcedure(AddIn& addIn) {
  if (FindCurrentProcedure(addIn)) act(addIn);
}

template <void (*act)(AddIn&)>
void OnCurrentProcedureLocked(AddIn& addIn) {
  if (!FindCurrentProcedure(addIn)) return;
  const RedrawLock lock(addIn.environment);
  act(addIn);
}

void InsertStandardHeader(AddIn& addIn) {
  addIn.Attempt([&] { InsertHeader(addIn.context, header_kind::kStandard); });
}

void InsertAdaptedHeader(AddIn& addIn) {
  addIn.Attempt([&] { InsertHeader(addIn.context, header_kind::kAdapted); });
}

void StampTime(AddIn& addIn) {
  addIn.Attempt([&] { InsertTimeStamp(addIn.context); });
}

// Exports, of the selection and of the whole module.

template <const std::string_view& format, bool selectedOnly>
void Export(AddIn& addIn) {
  const ExportTools tools{addIn.environment, addIn.progressWindow, addIn.onSkippedError};
  addIn.Attempt([&] { ExportCode(tools, format, selectedOnly); });
}

// Commands on the environment's windows.

void SwitchFullScreen(AddIn& addIn) {
  const RedrawLock lock(addIn.environment);
  addIn.Attempt([&] { ToggleFullScreen(addIn.environment); });
}

void EmptyImmediateWindow(AddIn& addIn) {
  addIn.Attempt([&] { ClearImmediateWindow(addIn.environment); });
}

void CloseOtherWindows(AddIn& addIn) {
  addIn.Attempt([&] { CloseCodeWindows(addIn.environment, false); });
}

void CheckSpelling(AddIn& addIn) {
  addIn.Attempt([&] { SpellCheckQuotesAndComments(addIn.context); });
}

struct Command {
  std::string_view caption;
  void (*run)(AddIn&);
};

constexpr Command kCommands[] = {
    {"Full Screen", SwitchFullScreen},
    {"Spell Check - Quotes and Comments", CheckSpelling},
    {"Clear Immediate Window", EmptyImmediateWindow},
    {"Close Windows", CloseOtherWindows},
    {"Insert Time Stamp", StampTime},
    {kInsertErrorHandling, OnCurrentProcedure<HandleErrorsInProcedure>},
    {"Comment Procedure", OnCurrentProcedureLocked<FrameProcedure>},
    {"Standard Header", OnCurrentProcedure<InsertStandardHeader>},
    {"Adapted Header", OnCurrentProcedure<InsertAdaptedHeader>},
    {kText, Export<export_format::kText, kSelectedOnly>},
    {kRtf, Export<export_format::kRtf, kSelectedOnly>},
    {kWebPage, Export<export_format::kHtm, kSelectedOnly>},
    {kQuickExport, Export<export_format::kQuickExport, kSelectedOnly>},
    {kAddLineNumbers, OnCurrentProcedureLocked<NumberProcedure>},
    {kRemoveLineNumbers, OnCurrentProcedureLocked<UnnumberProcedure>},
};

// Commands on the whole module.

void CleanUpModule(AddIn& addIn) {
  addIn.Attempt([&] {
    CleanUpCode(addIn.context, [&addIn](std::string_view caption, bool wholeModule) {
      ButtonClicked(addIn, caption, wholeModule);
    });
  });
}

struct ModuleCommand {
  enum class Runs { kForEachProcedure, kOnceWithProcedures, kOnce };

  std::string_view caption;
  std::string_view title;
  std::string_view message;
  Runs runs;
  void (*act)(AddIn&);
};

constexpr ModuleCommand kModuleCommands[] = {
    {"Code Clean Up", "", "", ModuleCommand::Runs::kOnceWithProcedures, CleanUpModule},
    {"Indent All Procedures", "Indenting All Procedures", "Now indenting all procedures",
     ModuleCommand::Runs::kForEachProcedure, IndentProcedure},
    {"Comment All Procedures", "Comment All Procedures", "Now adding comments to all procedures",
     ModuleCommand::Runs::kForEachProcedure, FrameProcedure},
    {kText, "", "", ModuleCommand::Runs::kOnce, Export<export_format::kText, kWholeModule>},
    {kRtf, "", "", ModuleCommand::Runs::kOnce, Export<export_format::kRtf, kWholeModule>},
    {kWebPage, "", "", ModuleCommand::Runs::kOnce, Export<export_format::kHtm, kWholeModule>},
    {kQuickExport, "", "", ModuleCommand::Runs::kOnce,
     Export<export_format::kQuickExport, kWholeModule>},
    {kAddLineNumbers, "Add Line Numbers To All Procedures",
     "Now adding line numbers to all procedures", ModuleCommand::Runs::kForEachProcedure,
     NumberProcedure},
    {kRemoveLineNumbers, "Remove Line Numbers From All Procedures",
     "Now removing line numbers from all procedures", ModuleCommand::Runs::kForEachProcedure,
     UnnumberProcedure},
    {kInsertErrorHandling, "Add Default Error Handling To All Procedures",
     "Now adding default error handling to all procedures", ModuleCommand::Runs::kForEachProcedure,
     HandleErrorsInProcedure},
};

template <class Row>
const Row* FindCommand(std::span<const Row> rows, std::string_view caption) {
  for (const Row& row : rows) {
    if (row.caption == caption) return &row;
  }
  return nullptr;
}

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

std::shared_ptr<CodePane> ActivePane(AddIn& addIn) {
  std::shared_ptr<CodePane> pane;
  addIn.Attempt([&] { pane = addIn.environment.vbe.ActiveCodePane(); });
  return pane;
}

/// Runs a command with the caret kept on its source line.
template <class Run>
void WithCaretKept(AddIn& addIn, Run run) {
  std::optional<SavedSelection> saved;
  addIn.Attempt([&] { saved = SaveSelection(ActivePane(addIn).get()); });
  addIn.Attempt(run);
  if (!saved) return;
  addIn.Attempt([&] {
    if (const auto pane = ActivePane(addIn)) PutCaretBack(*pane, *saved);
  });
}

}  // namespace

void ButtonClicked(AddIn& addIn, std::string_view caption, bool wholeModule) {
  if (wholeModule) {
    const auto* command = FindCommand<ModuleCommand>(kModuleCommands, caption);
    if (command != nullptr) WithCaretKept(addIn, [&] { RunModuleCommand(addIn, *command); });
  } else {
    const auto* command = FindCommand<Command>(kCommands, caption);
    if (command != nullptr) WithCaretKept(addIn, [&] { command->run(addIn); });
  }
}

bool HasCommand(std::string_view caption, bool wholeModule) {
  return wholeModule ? FindCommand<ModuleCommand>(kModuleCommands, caption) != nullptr
                     : FindCommand<Command>(kCommands, caption) != nullptr;
}

void HandleClick(AddIn& addIn, const CatalogueEntry& entry, std::string_view caption) {
  if (!entry.hourglass) {
    ButtonClicked(addIn, caption, entry.wholeModule);
    return;
  }
  const HourglassPointer hourglass(addIn.environment.screen);
  ButtonClicked(addIn, caption, entry.wholeModule);
}

std::string_view KindWordOf(std::string_view declaration) {
  if (Contains(declaration, "Sub")) return "Sub";
  if (Contains(declaration, "Function")) return "Function";
  return "Property";
}

}  // namespace brimwork
