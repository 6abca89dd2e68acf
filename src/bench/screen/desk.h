// How the main window's room is shared out between toolbars, tool windows and the workspace, and
// how the user moves the borders between them.
#pragma once

#include <windows.h>

#include <optional>

#include "bench/screen/bar_set.h"
#include "bench/screen/panel_plan.h"
#include "bench/screen/tool_set.h"

namespace brimwork::bench {

class Desk {
 public:
  Desk(HWND frame, HWND client, BarSet& bars, ToolSet& tools)
      : frame_(frame), client_(client), bars_(bars), tools_(tools) {}

  void Arrange();

  /// The mouse over the frame's own surface, which shows in the gaps only.
  void OnMouse(UINT message, POINT place);
  HCURSOR CursorAt(POINT place) const;

 private:
  std::optional<Gap> GapAt(POINT place) const;

  HWND frame_;
  HWND client_;
  BarSet& bars_;
  ToolSet& tools_;
  PanelSizes sizes_;
  PanelPlan plan_;

  std::optional<Gap> dragged_;
  POINT start_{};
  PanelSizes sizesAtStart_;
};

}  // namespace brimwork::bench
