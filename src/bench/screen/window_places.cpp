#include "bench/screen/window_places.h"

#include "bench/screen/native_bounds.h"

namespace brimwork::bench {

HWND WindowPlaces::NativeOf(const MemoryWindow& window) const {
  if (IsMain(window)) return frame_.Handle();
  if (const MdiChild* child = workspace_.Of(window)) return child->Handle();
  const ToolWindow* tool = tools_.Of(window);
  return tool != nullptr ? tool->Handle() : nullptr;
}

HWND WindowPlaces::FocusTargetOf(const MemoryWindow* window) const {
  if (window == nullptr) return frame_.Handle();
  if (const MdiChild* child = workspace_.Of(*window)) return child->FocusTarget();
  const ToolWindow* tool = tools_.Of(*window);
  return tool != nullptr ? tool->FocusTarget() : frame_.Handle();
}

Bounds WindowPlaces::BoundsOf(const MemoryWindow& window) const {
  const HWND native = NativeOf(window);
  if (native == nullptr) return {};
  if (IsMain(window)) return BoundsIn(nullptr, native);
  const bool isChild = workspace_.Of(window) != nullptr;
  return BoundsIn(isChild ? frame_.Client() : frame_.Handle(), native);
}

void WindowPlaces::SetBoundsOf(const MemoryWindow& window, const Bounds& bounds) const {
  const HWND native = NativeOf(window);
  if (native == nullptr || tools_.Of(window) != nullptr) return;
  MoveWindow(native, bounds.left, bounds.top, bounds.width, bounds.height, TRUE);
}

WindowState WindowPlaces::StateOf(const MemoryWindow& window) const {
  const HWND native = NativeOf(window);
  if (IsIconic(native)) return WindowState::kMinimized;
  return IsZoomed(native) ? WindowState::kMaximized : WindowState::kNormal;
}

void WindowPlaces::SetStateOf(const MemoryWindow& window, WindowState state) const {
  if (MdiChild* child = workspace_.Of(window)) return child->SetState(state);
  if (!IsMain(window)) return;
  constexpr int kShown[] = {SW_RESTORE, SW_MINIMIZE, SW_MAXIMIZE};
  ShowWindow(frame_.Handle(), kShown[static_cast<std::size_t>(state)]);
}

bool WindowPlaces::IsMain(const MemoryWindow& window) const {
  return bench_.vbe.MainWindow().get() == &window;
}

}  // namespace brimwork::bench
