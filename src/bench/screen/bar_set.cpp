#include "bench/screen/bar_set.h"

#include <algorithm>
#include <utility>

#include "bench/screen/native_bounds.h"
#include "environment/command_bar.h"

namespace brimwork::bench {
namespace {

bool IsShownToolbar(MemoryCommandBar& bar) {
  return bar.Kind() == bar_type::kToolbar && bar.Details().enabled && bar.Visible();
}

}  // namespace

bool BarSet::Refresh() {
  std::vector<Stand> stands = CurrentStands();
  bool isOther = stands != stands_;
  stands_ = std::move(stands);
  std::erase_if(floating_, [this](const auto& each) {
    const auto stand =
        std::ranges::find(stands_, each.first, [](const Stand& shown) { return shown.bar.get(); });
    const bool stays = stand != stands_.end() && stand->position == bar_position::kFloating;
    BarWindow* window = FindWindowOf(*each.first);
    if (!stays && window != nullptr) SetParent(window->Handle(), frame_);
    return !stays;
  });
  std::erase_if(windows_, [this](const auto& window) {
    return std::ranges::find(stands_, window->Model(), &Stand::bar) == stands_.end();
  });
  for (const Stand& stand : stands_) isOther = WindowOf(stand.bar).Refresh() || isOther;
  if (isOther) ShowFloating();
  return isOther;
}

std::vector<BarSet::Stand> BarSet::CurrentStands() const {
  std::vector<Stand> stands;
  for (const auto& bar : parts_.bench.vbe.commandBars.All()) {
    if (!IsShownToolbar(*bar)) continue;
    stands.push_back({bar, bar->Position(), bar->RowIndex(), bar->Left(), bar->Top()});
  }
  return stands;
}

void BarSet::ShowFloating() {
  for (const Stand& stand : stands_) {
    if (stand.position != bar_position::kFloating) continue;
    auto& window = floating_[stand.bar.get()];
    if (!window) window = std::make_unique<FloatingBar>(parts_, *this, stand.bar);
    window->Hold(WindowOf(stand.bar));
  }
}

BarWindow& BarSet::WindowOf(const std::shared_ptr<MemoryCommandBar>& bar) {
  if (BarWindow* known = FindWindowOf(*bar)) return *known;
  windows_.push_back(std::make_unique<BarWindow>(parts_, *this, frame_, bar));
  return *windows_.back();
}

BarWindow* BarSet::FindWindowOf(const MemoryCommandBar& bar) const {
  const auto found = std::ranges::find_if(
      windows_, [&](const auto& window) { return window->Model().get() == &bar; });
  return found == windows_.end() ? nullptr : found->get();
}

Bounds BarSet::Arrange(const Bounds& outer) {
  std::vector<DockedBar> docked;
  std::vector<BarWindow*> windows;
  for (const Stand& stand : stands_) {
    if (stand.position == bar_position::kFloating) continue;
    BarWindow& window = WindowOf(stand.bar);
    windows.push_back(&window);
    docked.push_back({stand.position, stand.row,
                      GoesAcross(stand.position) ? stand.left : stand.top,
                      [&window, position = stand.position](int limit) {
                        return window.Measure(position, limit);
                      }});
  }
  const DockPlan plan = PlanDocks(docked, outer);
  for (std::size_t bar = 0; bar < windows.size(); ++bar) {
    windows[bar]->Place(docked[bar].position, plan.bars[bar]);
  }
  outer_ = outer;
  inner_ = plan.inner;
  return plan.inner;
}

std::optional<Bounds> BarSet::BoundsOf(const MemoryCommandBar& bar) const {
  const BarWindow* window = FindWindowOf(bar);
  if (window == nullptr) return std::nullopt;
  const auto floating = floating_.find(&bar);
  if (floating != floating_.end()) return BoundsIn(nullptr, floating->second->Handle());
  return BoundsIn(frame_, window->Handle());
}

std::optional<Bounds> BarSet::BoundsOf(const MemoryCommandBarControl& control) const {
  for (const auto& window : windows_) {
    auto bounds = window->BoundsOf(control);
    if (!bounds) continue;
    POINT corner = {bounds->left, bounds->top};
    const bool floats = floating_.contains(window->Model().get());
    MapWindowPoints(window->Handle(), floats ? nullptr : frame_, &corner, 1);
    bounds->left = static_cast<int>(corner.x);
    bounds->top = static_cast<int>(corner.y);
    return bounds;
  }
  return std::nullopt;
}

// The frame has the mouse while a bar is dragged: the bar's own window may come and go.
void BarSet::StartDrag(const std::shared_ptr<MemoryCommandBar>& bar, POINT place) {
  const auto bounds = BoundsOf(*bar);
  if (!bounds) return;
  dragged_ = bar;
  POINT corner = {bounds->left, bounds->top};
  if (!floating_.contains(bar.get())) ClientToScreen(frame_, &corner);
  grabbed_ = {place.x - corner.x, place.y - corner.y};
  SetCapture(frame_);
}

void BarSet::DragTo(POINT place) {
  POINT inFrame = place;
  ScreenToClient(frame_, &inFrame);
  const DropPlace drop =
      DropPlaceAt(static_cast<int>(inFrame.x), static_cast<int>(inFrame.y), outer_, inner_);
  if (drop.position == bar_position::kFloating) {
    dragged_->SetPosition(drop.position);
    dragged_->SetLeft(static_cast<int>(place.x - grabbed_.x));
    dragged_->SetTop(static_cast<int>(place.y - grabbed_.y));
    return;
  }
  dragged_->SetRowIndex(RowAt(drop, inFrame));
  dragged_->SetPosition(drop.position);
  if (GoesAcross(drop.position)) {
    dragged_->SetLeft(std::max(drop.offset - static_cast<int>(grabbed_.x), 0));
  } else {
    dragged_->SetTop(std::max(drop.offset - static_cast<int>(grabbed_.y), 0));
  }
}

/// The row of the bar that stands where the pointer is, else one behind all of that edge.
int BarSet::RowAt(const DropPlace& place, POINT inFrame) const {
  int behind = 0;
  for (const Stand& stand : stands_) {
    if (stand.position != place.position) continue;
    const auto bounds = BoundsOf(*stand.bar);
    if (!bounds) continue;
    const int along = GoesAcross(place.position) ? static_cast<int>(inFrame.y) - bounds->top
                                                 : static_cast<int>(inFrame.x) - bounds->left;
    const int depth = GoesAcross(place.position) ? bounds->height : bounds->width;
    if (along >= 0 && along < depth) return stand.row;
    behind = std::max(behind, stand.row + 1);
  }
  return behind;
}

}  // namespace brimwork::bench
