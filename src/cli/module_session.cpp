#include "cli/module_session.h"

#include <utility>

#include "core/modButtonClicked.h"
#include "environment/text.h"
#include "settings/setting_keys.h"
#include "settings/settings.h"

namespace brimwork {
namespace {

constexpr std::string_view kEditorOptions = "Software\\Microsoft\\VBA\\Microsoft Visual Basic";

}  // namespace

ModuleSession::ModuleSession(const RunOptions& options, SourceFile& file,
                             std::function<std::string()> projectName)
    : file_(file),
      settings_(memory_.settingsArea, std::string(kApplicationTitle), std::string(kSettingsSection),
                options.settings),
      clock_(options.now, options.dateLocale),
      pane_(memory_.Open(file.ModuleName(), file.TakeText())),
      module_(std::static_pointer_cast<MemoryCodeModule>(pane_->Module())),
      addIn_(memory_.Parts(
          {.settingsArea = &settings_, .shellFolders = &shellFolders_, .clock = &clock_})) {
  memory_.vbe.SetProject(std::make_shared<MemoryProject>(std::move(projectName)));
  if (options.tabWidth) {
    memory_.registry.SetDword(kHiveCurrentUser, kEditorOptions, "TabWidth",
                              static_cast<std::uint32_t>(*options.tabWidth));
  }
  memory_.wordProcessors.isInstalled = options.spelling != nullptr;
  if (options.spelling) {
    spelling_.emplace(*options.spelling, file, *module_,
                      GetCommandSetting(addIn_.environment, setting::kSeperator),
                      memory_.wordProcessors);
  }
  addIn_.onSkippedError = [this](const RunTimeError& error) { skippedErrors_.push_back(error); };
}

/// The spelling step of a clean-up finds all places done already.
int ModuleSession::Run(const CommandRequest& command) {
  if (spelling_) {
    spelling_->CheckWith([this] { ButtonClicked(addIn_, kSpellCheckCaption, false); });
  }
  if (command.caption == kSpellCheckCaption) return 1;
  if (command.place.procedure) return RunInProcedures(command);
  if (command.place.line) PlaceCaret(file_.ModuleLineOf(*command.place.line), command);
  ButtonClicked(addIn_, command.caption, command.wholeModule);
  return 1;
}

void ModuleSession::SelectLines(int first, int last) {
  pane_->SetSelection({first, 1, last, CharacterCount(module_->Lines(last, 1)) + 1});
}

int ModuleSession::RunInProcedures(const CommandRequest& command) {
  int ranAt = 0;
  int line = module_->CountOfDeclarationLines() + 1;
  while (line <= module_->CountOfLines()) {
    const auto [name, kind] = module_->ProcOfLine(line);
    if (name.empty()) break;
    if (EqualNames(name, *command.place.procedure)) {
      PlaceCaret(module_->ProcBodyLine(name, kind), command);
      ButtonClicked(addIn_, command.caption, command.wholeModule);
      ++ranAt;
    }
    line = module_->ProcStartLine(name, kind) + module_->ProcCountLines(name, kind);
  }
  return ranAt;
}

/// Without a column the caret goes behind the line's text, where a stamp leaves the code alone.
void ModuleSession::PlaceCaret(int moduleLine, const CommandRequest& command) {
  const int behindText = CharacterCount(module_->Lines(moduleLine, 1)) + 1;
  const int column = command.place.column.value_or(behindText);
  pane_->SetSelection({moduleLine, column, moduleLine, column});
}

}  // namespace brimwork
