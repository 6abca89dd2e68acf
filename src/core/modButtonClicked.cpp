#include "core/modButtonClicked.h"

#include <memory>
#include <optional>
#include <span>
#include <string>

#include "core/code_commands.h"
#include "core/form_commands.h"
#include "core/module_commands.h"
#include "core/saved_selection.h"
#include "core/window_commands.h"
#include "transform/code_source.h"

namespace brimwork {
namespace {

struct Command {
  std::string_view caption;
  void (*run)(AddIn&);
};

constexpr Command kCommands[] = {
    {"Full Screen", SwitchFullScreen},
    {"Spell Check - Quotes and Comments", CheckSpelling},
    {"MsgBox Creator", ShowMessageBoxDesigner},
    {"Clear Immediate Window", EmptyImmediateWindow},
    {"Close Windows", CloseOtherWindows},
    {"Insert Time Stamp", StampTime},
    {"Insert Error Handling", OnCurrentProcedure<HandleErrorsInProcedure>},
    {"Comment Procedure", OnCurrentProcedureLocked<FrameProcedure>},
    {"Standard Header", OnCurrentProcedure<InsertStandardHeader>},
    {"Adapted Header", OnCurrentProcedure<InsertAdaptedHeader>},
    {"Text", ExportAs<export_format::kText, kSelectedOnly>},
    {"RTF", ExportAs<export_format::kRtf, kSelectedOnly>},
    {"Web Page", ExportAs<export_format::kHtm, kSelectedOnly>},
    {"Quick Export", ExportAs<export_format::kQuickExport, kSelectedOnly>},
    {"Add Line Numbers", OnCurrentProcedureLocked<NumberProcedure>},
    {"Remove Line Numbers", OnCurrentProcedureLocked<UnnumberProcedure>},
    {"Contents", OpenHelpContents},
    {"Index", OpenHelpIndex},
    {"Configure Brimwork", ShowSetupDialog},
    {"About Brimwork", ShowAboutBox},
    {"Vantrel Web Site", OpenWebSite},
};

template <class Row>
const Row* FindCommand(std::span<const Row> rows, std::string_view caption) {
  for (const Row& row : rows) {
    if (row.caption == caption) return &row;
  }
  return nullptr;
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
  addIn.context.indentUnit.reset();  // the user may have changed it since the last command
  if (wholeModule) {
    const auto* command = FindCommand(ModuleCommands(), caption);
    if (command != nullptr) WithCaretKept(addIn, [&] { RunModuleCommand(addIn, *command); });
  } else {
    const auto* command = FindCommand<Command>(kCommands, caption);
    if (command != nullptr) WithCaretKept(addIn, [&] { command->run(addIn); });
  }
}

bool HasCommand(std::string_view caption, bool wholeModule) {
  return wholeModule ? FindCommand(ModuleCommands(), caption) != nullptr
                     : FindCommand<Command>(kCommands, caption) != nullptr;
}

void HandleClick(AddIn& addIn, const CatalogueEntry& entry, CommandBarControl& clicked) {
  std::optional<HourglassPointer> hourglass;
  if (entry.hourglass) hourglass.emplace(addIn.environment.screen);
  std::string caption;
  addIn.Attempt([&] { caption = clicked.Caption(); });
  ButtonClicked(addIn, caption, entry.wholeModule);
}

}  // namespace brimwork
