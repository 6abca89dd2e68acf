#include "bench/screen/further_entries.h"

#include <string>

namespace brimwork::bench {
namespace {

std::vector<FurtherEntry> OpenWindows(const Workspace& workspace) {
  std::vector<FurtherEntry> entries;
  const MdiChild* active = workspace.Active();
  for (const auto& window : workspace.Windows()) {
    if (!window->Model()->Visible()) continue;
    entries.push_back({"&" + std::to_string(entries.size() + 1) + " " + window->Model()->Caption(),
                       window.get() == active, [model = window->Model()] { model->SetFocus(); }});
  }
  return entries;
}

std::vector<FurtherEntry> AddedToolbars(const Workbench& bench) {
  std::vector<FurtherEntry> entries;
  for (const auto& bar : bench.vbe.commandBars.All()) {
    if (bar->IsBuiltIn() || bar->Kind() != bar_type::kToolbar) continue;
    entries.push_back(
        {bar->LastName(), bar->Visible(), [bar] { bar->SetVisible(!bar->Visible()); }});
  }
  return entries;
}

}  // namespace

std::vector<FurtherEntry> FurtherEntriesOf(const MemoryCommandBarControls& entries,
                                           const Workbench& bench, const Workspace& workspace) {
  if (&entries == bench.bars.window->Entries().get()) return OpenWindows(workspace);
  if (&entries == bench.bars.toolbars->Entries().get()) return AddedToolbars(bench);
  return {};
}

}  // namespace brimwork::bench
