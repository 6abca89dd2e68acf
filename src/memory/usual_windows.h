// The windows and command bars that a Visual Basic environment usually stands there with.
#pragma once

#include <memory>

#include "memory/memory_text_window.h"
#include "memory/memory_vbe.h"
#include "memory/usual_command_bars.h"

namespace brimwork {

struct UsualWindows {
  std::shared_ptr<MemoryWindow> project;
  std::shared_ptr<MemoryWindow> properties;
  std::shared_ptr<MemoryWindow> toolbox;
  std::shared_ptr<MemoryWindow> immediate;
  std::shared_ptr<MemoryWindow> locals;  // hidden at first
  std::shared_ptr<MemoryWindow> watch;   // hidden at first

  std::shared_ptr<MemoryTextWindow> immediateText;

  UsualCommandBars bars;
};

/// Adds them and the usual command bars to the environment, behind what it holds, and hands them
/// back.
UsualWindows AddUsualWindows(MemoryVbe& vbe);

}  // namespace brimwork
