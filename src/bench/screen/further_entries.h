// What stands at the end of a menu and is no control of the model's.
#pragma once

#include <vector>

#include "bench/screen/menu_table.h"
#include "bench/screen/workspace.h"

namespace brimwork::bench {

/// The open windows for the Window menu, the bars that add-ins made for the menu of toolbars;
/// nothing for any other menu.
std::vector<FurtherEntry> FurtherEntriesOf(const MemoryCommandBarControls& entries,
                                           const Workbench& bench, const Workspace& workspace);

}  // namespace brimwork::bench
