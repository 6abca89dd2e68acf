// Looks for a control on command bars.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "memory/memory_command_bar_control.h"
#include "memory/memory_command_bar_controls.h"

namespace brimwork::bench {

/// What a control must be; what is not said may be anything.
struct ControlSearch {
  std::optional<int> type;
  std::optional<int> id;
  std::optional<std::string> tag;
  bool visibleOnly = false;
  bool insidePopups = false;
};

/// The first of the controls that is so; null when none is.
std::shared_ptr<MemoryCommandBarControl> FindControl(const MemoryCommandBarControls& controls,
                                                     const ControlSearch& search);

}  // namespace brimwork::bench
