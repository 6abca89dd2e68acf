#include "bench/screen/tool_set.h"

#include <utility>

#include "bench/screen/project_tree.h"
#include "bench/screen/properties_list.h"
#include "bench/screen/tool_contents.h"

namespace brimwork::bench {
namespace {

using Windows = UsualWindows;

const std::shared_ptr<MemoryWindow>& ModelOf(const Windows& windows, Panel panel) {
  switch (panel) {
    case Panel::kToolbox:
      return windows.toolbox;
    case Panel::kProject:
      return windows.project;
    case Panel::kProperties:
      return windows.properties;
    case Panel::kImmediate:
      return windows.immediate;
    case Panel::kLocals:
      return windows.locals;
    default:
      return windows.watch;
  }
}

std::unique_ptr<ToolContent> NewContent(const ScreenParts& parts, const ToolWindow& owner,
                                        Panel panel) {
  switch (panel) {
    case Panel::kToolbox:
      return std::make_unique<ToolboxContent>(parts, owner);
    case Panel::kProject:
      return std::make_unique<ProjectTree>(parts, owner);
    case Panel::kProperties:
      return std::make_unique<PropertiesList>(parts, owner);
    case Panel::kImmediate:
      return std::make_unique<ImmediateContent>(parts, owner);
    case Panel::kLocals:
      return std::make_unique<ColumnList>(parts, owner, LocalsColumns());
    default:
      return std::make_unique<ColumnList>(parts, owner, WatchColumns());
  }
}

Panel PanelAt(std::size_t place) { return static_cast<Panel>(place); }

}  // namespace

ToolSet::ToolSet(const ScreenParts& parts, HWND frame) {
  for (std::size_t place = 0; place < kPanels; ++place) {
    const Panel panel = PanelAt(place);
    auto& window = windows_[place];
    window = std::make_unique<ToolWindow>(parts, frame, ModelOf(parts.bench.windows, panel));
    auto content = NewContent(parts, *window, panel);
    if (panel == Panel::kImmediate) {
      immediateText_ = &static_cast<ImmediateContent&>(*content).Text();
    }
    window->Hold(std::move(content));
  }
  ReadVisibility();
}

void ToolSet::TakeInput() {
  for (const auto& window : windows_) window->Content().TakeInput();
}

void ToolSet::Refresh() {
  for (const auto& window : windows_) window->Refresh();
}

bool ToolSet::ReadVisibility() {
  std::set<Panel> shown;
  for (std::size_t place = 0; place < kPanels; ++place) {
    if (windows_[place]->Model()->Visible()) shown.insert(PanelAt(place));
  }
  return std::exchange(shown_, shown) != shown;
}

void ToolSet::Arrange(const PanelPlan& plan) {
  for (std::size_t place = 0; place < kPanels; ++place) {
    const HWND window = windows_[place]->Handle();
    const Bounds& bounds = plan.panels[place];
    if (shown_.contains(PanelAt(place))) {
      MoveWindow(window, bounds.left, bounds.top, bounds.width, bounds.height, TRUE);
      ShowWindow(window, SW_SHOWNA);
    } else {
      ShowWindow(window, SW_HIDE);
    }
  }
}

ToolWindow* ToolSet::Of(const MemoryWindow& window) const {
  for (const auto& each : windows_) {
    if (each->Model().get() == &window) return each.get();
  }
  return nullptr;
}

}  // namespace brimwork::bench
