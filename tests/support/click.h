// A click on an entry of the catalogue without an environment's bars around it.
#pragma once

#include <string_view>

#include "core/modButtonClicked.h"
#include "memory/memory_command_bars.h"

namespace brimwork {

/// Hands the entry's handler a control that bears the caption.
inline void Click(AddIn& addIn, const CatalogueEntry& entry, std::string_view caption) {
  const MemoryClipboard clipboard;
  MemoryCommandBars bars(clipboard);
  const auto control = bars.Add({.name = "Bar"})->Controls()->Add({});
  control->SetCaption(caption);
  HandleClick(addIn, entry, *control);
}

}  // namespace brimwork
