// One module opened in an environment of its own, as a command finds it: the same commands run here
// as in the editor.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/module_spelling.h"
#include "cli/run_options.h"
#include "core/add_in.h"
#include "memory/locale_clock.h"
#include "memory/memory_environment.h"
#include "memory/overlay_settings_area.h"
#include "memory/source_file.h"
#include "memory/xdg_shell_folders.h"

namespace brimwork {

class ModuleSession {
 public:
  /// Takes the module's lines out of file, which outlives the session.
  ModuleSession(const RunOptions& options, SourceFile& file,
                std::function<std::string()> projectName);

  /// Runs the command where it was asked for. Returns how many places it ran at: 0 when the module
  /// has no procedure of the name asked for. Throws SourceError for a line that the file has not.
  int Run(const CommandRequest& command);

  /// What became of the module's spelling; null in a run that does not check it.
  const ModuleSpelling* Spelling() const { return spelling_ ? &*spelling_ : nullptr; }

  /// Selects whole lines of the module, first to last, for a command on the selection.
  void SelectLines(int first, int last);

  /// Called when the progress window repaints.
  void OnProgress(std::function<void(const frmInfo&)> show) {
    addIn_.progressWindow.OnRepaint = std::move(show);
  }

  const ModuleText& Text() const { return module_->Text(); }
  MemoryCodeModule& Module() { return *module_; }
  /// Where the command runs, to answer its dialogs beforehand and to take what it wrote.
  MemoryEnvironment& Memory() { return memory_; }
  Environment& Parts() { return addIn_.environment; }

  /// The errors that ended steps of the command early.
  const std::vector<RunTimeError>& SkippedErrors() const { return skippedErrors_; }

 private:
  int RunInProcedures(const CommandRequest& command);
  void PlaceCaret(int moduleLine, const CommandRequest& command);

  const SourceFile& file_;
  MemoryEnvironment memory_;
  OverlaySettingsArea settings_;
  LocaleClock clock_;
  XdgShellFolders shellFolders_;
  std::shared_ptr<MemoryCodePane> pane_;
  std::shared_ptr<MemoryCodeModule> module_;
  AddIn addIn_;
  std::optional<ModuleSpelling> spelling_;
  std::vector<RunTimeError> skippedErrors_;
};

}  // namespace brimwork
