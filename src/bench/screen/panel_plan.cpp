#include "bench/screen/panel_plan.h"

#include <algorithm>

namespace brimwork::bench {
namespace {

constexpr int kGap = 4;
constexpr int kLeastPanel = 60;

/// What a panel gets of the room that it shares with the workspace or another panel.
int Share(int wanted, int room) { return std::clamp(wanted, 0, std::max(room / 2, 0)); }

/// Cuts panels off the room that is left.
class Cutting {
 public:
  Cutting(const std::set<Panel>& shown, const PanelSizes& sizes, const Bounds& inner)
      : shown_(shown), sizes_(sizes), free_(inner) {}

  PanelPlan Take() {
    if (Shows(Panel::kToolbox)) CutToolbox();
    if (Shows(Panel::kProject) || Shows(Panel::kProperties)) CutRight();
    if (Shows(Panel::kImmediate) || Shows(Panel::kLocals) || Shows(Panel::kWatch)) CutBottom();
    plan_.workspace = free_;
    return std::move(plan_);
  }

 private:
  bool Shows(Panel panel) const { return shown_.contains(panel); }
  Bounds& At(Panel panel) { return plan_.panels[static_cast<std::size_t>(panel)]; }

  void CutToolbox() {
    const int width = Share(sizes_.left, free_.width);
    At(Panel::kToolbox) = {free_.left, free_.top, width, free_.height};
    free_.left += width + kGap;
    free_.width = std::max(free_.width - width - kGap, 0);
  }

  void CutRight() {
    const int width = Share(sizes_.right, free_.width);
    const int left = free_.left + free_.width - width;
    StackRight({left, free_.top, width, free_.height});
    free_.width = std::max(free_.width - width - kGap, 0);
    plan_.gaps.push_back({Gap::kRight, {left - kGap, free_.top, kGap, free_.height}});
  }

  void StackRight(const Bounds& column) {
    if (!Shows(Panel::kProperties)) {
      At(Panel::kProject) = column;
      return;
    }
    if (!Shows(Panel::kProject)) {
      At(Panel::kProperties) = column;
      return;
    }
    const int upper = std::clamp(sizes_.upperRight, 0, std::max(column.height - kLeastPanel, 0));
    const int lower = std::max(column.height - upper - kGap, 0);
    At(Panel::kProject) = {column.left, column.top, column.width, upper};
    At(Panel::kProperties) = {column.left, column.top + upper + kGap, column.width, lower};
    plan_.gaps.push_back({Gap::kUpperRight, {column.left, column.top + upper, column.width, kGap}});
  }

  void CutBottom() {
    const int height = Share(sizes_.bottom, free_.height);
    const int top = free_.top + free_.height - height;
    ShareBottom({free_.left, top, free_.width, height});
    free_.height = std::max(free_.height - height - kGap, 0);
    plan_.gaps.push_back({Gap::kBottom, {free_.left, top - kGap, free_.width, kGap}});
  }

  void ShareBottom(const Bounds& row) {
    std::vector<Panel> beside;
    for (const Panel panel : {Panel::kImmediate, Panel::kLocals, Panel::kWatch}) {
      if (Shows(panel)) beside.push_back(panel);
    }
    int left = row.left;
    int panelsLeft = static_cast<int>(beside.size());
    for (const Panel panel : beside) {
      const int room = row.left + row.width - left - (panelsLeft - 1) * kGap;
      const int width = std::max(room / panelsLeft, 0);
      At(panel) = {left, row.top, width, row.height};
      left += width + kGap;
      --panelsLeft;
    }
  }

  const std::set<Panel>& shown_;
  const PanelSizes& sizes_;
  Bounds free_;
  PanelPlan plan_;
};

}  // namespace

PanelPlan PlanPanels(const std::set<Panel>& shown, const PanelSizes& sizes, const Bounds& inner) {
  return Cutting(shown, sizes, inner).Take();
}

PanelSizes Dragged(const PanelSizes& sizes, Gap gap, int right, int down) {
  PanelSizes dragged = sizes;
  switch (gap) {
    case Gap::kRight:
      dragged.right = std::max(sizes.right - right, kLeastPanel);
      break;
    case Gap::kUpperRight:
      dragged.upperRight = std::max(sizes.upperRight + down, kLeastPanel);
      break;
    case Gap::kBottom:
      dragged.bottom = std::max(sizes.bottom - down, kLeastPanel);
      break;
  }
  return dragged;
}

}  // namespace brimwork::bench
