// Which native window stands for which of the model's, and where it stands.
#pragma once

#include <windows.h>

#include "bench/model/surface.h"
#include "bench/screen/main_frame.h"
#include "bench/screen/tool_set.h"
#include "bench/screen/workspace.h"

namespace brimwork::bench {

class WindowPlaces {
 public:
  WindowPlaces(Workbench& bench, const MainFrame& frame, const Workspace& workspace,
               const ToolSet& tools)
      : bench_(bench), frame_(frame), workspace_(workspace), tools_(tools) {}

  /// Null for a window that is closed.
  HWND NativeOf(const MemoryWindow& window) const;

  /// What gets the keyboard's focus when the window does; the main window for null.
  HWND FocusTargetOf(const MemoryWindow* window) const;

  /// The main window's count from the screen's corner.
  Bounds BoundsOf(const MemoryWindow& window) const;
  /// Docked windows stay where they are.
  void SetBoundsOf(const MemoryWindow& window, const Bounds& bounds) const;

  WindowState StateOf(const MemoryWindow& window) const;
  void SetStateOf(const MemoryWindow& window, WindowState state) const;

 private:
  bool IsMain(const MemoryWindow& window) const;

  Workbench& bench_;
  const MainFrame& frame_;
  const Workspace& workspace_;
  const ToolSet& tools_;
};

}  // namespace brimwork::bench
