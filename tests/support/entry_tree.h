// The environment's bars and what stands on them, as lines that a test compares.
#pragma once

#include <string>
#include <vector>

#include "memory/memory_command_bars.h"

namespace brimwork {

/// A line for each control: two blanks for each popup around it, "--" where a separator stands
/// above it, the caption, and ">" for a popup.
inline void AppendEntries(const MemoryCommandBarControls& controls, const std::string& indentation,
                          std::vector<std::string>& lines) {
  for (const auto& control : controls.All()) {
    const bool isPopup = control->Entries() != nullptr;
    lines.push_back(indentation + (control->BeginGroup() ? "-- " : "") + control->Caption() +
                    (isPopup ? " >" : ""));
    if (isPopup) AppendEntries(*control->Entries(), indentation + "  ", lines);
  }
}

inline std::vector<std::string> EntryTree(const MemoryCommandBarControls& controls) {
  std::vector<std::string> lines;
  AppendEntries(controls, "", lines);
  return lines;
}

/// Every bar by name with its entries, but for the menu bar, which shows the entries of others.
inline std::vector<std::string> AllBars(const MemoryCommandBars& bars) {
  std::vector<std::string> lines;
  for (const auto& bar : bars.All()) {
    lines.push_back(bar->LastName() + ':');
    if (bar->LastName() != "Menu Bar") AppendEntries(*bar->Entries(), "  ", lines);
  }
  return lines;
}

/// All controls of a collection and of the popups in it.
inline std::vector<std::shared_ptr<MemoryCommandBarControl>> AllControls(
    const MemoryCommandBarControls& controls) {
  std::vector<std::shared_ptr<MemoryCommandBarControl>> all;
  for (const auto& control : controls.All()) {
    all.push_back(control);
    if (!control->Entries()) continue;
    const auto inner = AllControls(*control->Entries());
    all.insert(all.end(), inner.begin(), inner.end());
  }
  return all;
}

}  // namespace brimwork
