// Clicks on the add-in's entries with the keyboard and the mouse.
#pragma once

#include <string>
#include <vector>

#include "core/catalogue.h"
#include "support/windows/running_bench.h"

namespace brimwork {

/// The entry of a handler's number. Throws std::out_of_range when there is none.
const CatalogueEntry& EntryOfHandler(int handler);

/// Clicks an entry as its user does: on the toolbar with the mouse, in the Add-Ins menu with the
/// keyboard, in a pop-up menu of the window that has the focus with both. Throws std::runtime_error
/// when it is not there.
void ClickEntry(const RunningBench& bench, const CatalogueEntry& entry);
void ClickEntry(const RunningBench& bench, int handler);

/// The captions on the way to an entry of a bar, its own included.
std::vector<std::string> PathTo(const CatalogueEntry& entry);

/// The name of the bar that a place is.
std::string BarOf(EntryPlace place);

/// The entries of a bar and of its popups, as EntryTree writes them.
std::vector<std::string> EntriesOf(const bench::Client& vbe, const std::string& bar);

}  // namespace brimwork
