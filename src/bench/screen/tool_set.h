// The tool windows around the workspace.
#pragma once

#include <array>
#include <memory>
#include <set>

#include "bench/screen/panel_plan.h"
#include "bench/screen/text_view.h"
#include "bench/screen/tool_window.h"

namespace brimwork::bench {

class ToolSet {
 public:
  ToolSet(const ScreenParts& parts, HWND frame);

  void TakeInput();
  void Refresh();

  /// True when other windows than before are to be shown.
  bool ReadVisibility();

  const std::set<Panel>& Shown() const { return shown_; }
  void Arrange(const PanelPlan& plan);

  /// Null for a window that is none of these.
  ToolWindow* Of(const MemoryWindow& window) const;

  TextView& ImmediateText() { return *immediateText_; }

 private:
  std::array<std::unique_ptr<ToolWindow>, kPanels> windows_;  // by Panel
  TextView* immediateText_ = nullptr;
  std::set<Panel> shown_;
};

}  // namespace brimwork::bench
