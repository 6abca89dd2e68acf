#include "bench/model/workbench_commands.h"

#include <functional>
#include <memory>
#include <string_view>
#include <utility>

#include "bench/model/block_commands.h"
#include "bench/model/workbench.h"
#include "environment/run_time_error.h"
#include "memory/source_error.h"
#include "memory/usual_commands.h"

namespace brimwork::bench {
namespace {

using BlockCommand = void (*)(MemoryCodePane&);

void Set(Workbench& bench, int command, std::function<void()> action) {
  bench.vbe.commandBars.SetAction(command, std::move(action));
}

void SetWriting(Workbench& bench, int command, std::function<void()> write) {
  Set(bench, command, [write = std::move(write)] {
    try {
      write();
    } catch (const SourceError& error) {
      throw RunTimeError(error_number::kPathFileAccess, error.what());
    }
  });
}

void SetFileActions(Workbench& bench) {
  SetWriting(bench, command::kSaveProject, [&bench] { bench.SaveAll(); });
  SetWriting(bench, command::kSaveFile, [&bench] {
    const auto component = bench.SelectedComponent();
    if (component != nullptr) bench.ProjectOf(*component)->Save(*component);
  });
}

void SetOnBlock(Workbench& bench, int command, BlockCommand run) {
  Set(bench, command, [&bench, run] {
    if (const auto pane = bench.vbe.ActivePane()) run(*pane);
  });
}

void SetEditActions(Workbench& bench) {
  SetOnBlock(bench, command::kCommentBlock, CommentBlock);
  SetOnBlock(bench, command::kUncommentBlock, UncommentBlock);
  SetOnBlock(bench, command::kIndent, IndentBlock);
  SetOnBlock(bench, command::kOutdent, OutdentBlock);
}

void ShowWindow(Window& window) {
  window.SetVisible(true);
  window.SetFocus();
}

void SetShowing(Workbench& bench, int command, const std::shared_ptr<MemoryWindow>& window) {
  Set(bench, command, [window] { ShowWindow(*window); });
}

void SetWindowActions(Workbench& bench) {
  SetShowing(bench, command::kImmediateWindow, bench.windows.immediate);
  SetShowing(bench, command::kLocalsWindow, bench.windows.locals);
  SetShowing(bench, command::kWatchWindow, bench.windows.watch);
  SetShowing(bench, command::kProjectExplorer, bench.windows.project);
  SetShowing(bench, command::kPropertiesWindow, bench.windows.properties);
  SetShowing(bench, command::kToolbox, bench.windows.toolbox);
  Set(bench, command::kHide, [&bench] {
    if (const auto window = bench.vbe.ActiveWindow()) window->Close();
  });
}

void SetToggling(Workbench& bench, int command, const std::shared_ptr<MemoryCommandBar>& bar) {
  Set(bench, command, [bar] { bar->SetVisible(!bar->Visible()); });
}

void SetToolbarActions(Workbench& bench) {
  SetToggling(bench, command::kShowStandard, bench.bars.standard);
  SetToggling(bench, command::kShowEdit, bench.bars.edit);
  SetToggling(bench, command::kShowDebug, bench.bars.debug);
}

void SetComponentActions(Workbench& bench) {
  Set(bench, command::kViewCode, [&bench] {
    const auto component = bench.SelectedComponent();
    const auto pane = component != nullptr ? bench.PaneOf(component) : nullptr;
    if (pane != nullptr) ShowWindow(*pane->ContainingWindow());
  });
  Set(bench, command::kViewObject, [&bench] {
    const auto component = bench.SelectedComponent();
    const auto designer = component != nullptr ? bench.DesignerOf(component) : nullptr;
    if (designer != nullptr) ShowWindow(*designer);
  });
}

void SetAdding(Workbench& bench, int command, int type) {
  Set(bench, command, [&bench, type] {
    const auto project = bench.ActiveProject();
    if (project == nullptr) return;
    project->AddVBComponent(type);
    bench.PaneOf(project->Components().back());
  });
}

}  // namespace

void SetUsualActions(Workbench& workbench) {
  SetFileActions(workbench);
  SetEditActions(workbench);
  SetWindowActions(workbench);
  SetToolbarActions(workbench);
  SetComponentActions(workbench);
  SetAdding(workbench, command::kAddModule, component_type::kStandardModule);
  SetAdding(workbench, command::kAddClassModule, component_type::kClassModule);
}

void ShowNamesInMenus(Workbench& workbench, const std::string& project,
                      const std::string& component) {
  const auto show = [&](int command, std::string_view before, const std::string& name,
                        std::string_view behind) {
    const std::string caption = std::string(before).append(name).append(behind);
    for (const auto& control : workbench.vbe.commandBars.ControlsOf(command)) {
      control->SetCaption(caption);
    }
  };
  show(command::kSaveFile, "&Save ", component, "");
  show(command::kSaveFileAs, "Save ", component, " &As...");
  show(command::kRemoveFile, "&Remove ", component, "");
  show(command::kMakeProgram, "Ma&ke ", project, ".exe...");
  show(command::kProjectProperties, "", project, " Prop&erties...");
}

}  // namespace brimwork::bench
